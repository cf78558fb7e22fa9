#include "TasksPageFixture.h"
#include "app/TaskFilters.h"
#include "support/TestMain.h"

#include <QAccessible>
#include <QDateEdit>
#include <QLabel>
#include <QToolButton>

class FilterFoldTest : public TestCase
{
    Q_OBJECT

private slots:
    void theArrowFoldsTheFiltersAwayAndBack()
    {
        TasksPageFixture f;
        f.load();
        auto* button = f.control<QToolButton>("btnFold");
        const int list = f.page.grid()->height();
        button->click();
        for (const char* name : {"framFilters", "framDueDate", "framTaskType"}) {
            QVERIFY2(!f.control<QWidget>(name)->isVisible(), name);
        }
        QVERIFY(f.control<QLabel>("lblFilters")->isVisible());
        QTRY_VERIFY(f.page.grid()->height() > list + 60);
        button->click();
        QVERIFY(f.control<QWidget>("framFilters")->isVisible());
        QVERIFY(!f.control<QLabel>("lblFilters")->isVisible());
        QTRY_COMPARE(f.page.grid()->height(), list);
    }

    void theKeyboardFoldsAndAssistiveTechnologyHearsIt()
    {
        TasksPageFixture f;
        f.load();
        auto* button = f.control<QToolButton>("btnFold");
        QAccessibleInterface* seen = QAccessible::queryAccessibleInterface(button);
        QCOMPARE(seen->text(QAccessible::Name), QStringLiteral("Fold the filters away"));
        QVERIFY(!seen->state().checked);
        QVERIFY((button->focusPolicy() & Qt::TabFocus) == Qt::TabFocus);
        QTest::keyClick(button, Qt::Key_Space);
        QCOMPARE(seen->text(QAccessible::Name), QStringLiteral("Unfold the filters"));
        QVERIFY(seen->state().checked);
        QVERIFY(!f.control<QWidget>("framFilters")->isVisible());
    }

    void foldingTheControlWithTheFocusAwayGivesItToTheArrow()
    {
        TasksPageFixture f;
        f.load();
        f.page.activateWindow();
        f.control<QComboBox>("cmbSort")->setFocus();
        f.control<QToolButton>("btnFold")->click();
        QCOMPARE(f.page.focusWidget(), f.control<QToolButton>("btnFold"));
    }

    void foldedItSaysWhichFiltersLeaveTasksOut()
    {
        TasksPageFixture f;
        f.load();
        f.control<QToolButton>("btnFold")->click();
        const auto* line = f.control<QLabel>("lblFilters");
        QCOMPARE(line->text(), QStringLiteral("No filter leaves a task out"));
        f.choose("cmbSort", QStringLiteral("Name"));
        QCOMPARE(line->text(), QStringLiteral("No filter leaves a task out"));
        f.choose("cmbCategories", QStringLiteral("Office"));
        QVERIFY2(line->text().contains(QStringLiteral("Office")), qPrintable(line->text()));
        f.choose("cmbStatus", QStringLiteral("Deferred"));
        QVERIFY2(line->text().endsWith(QStringLiteral("Status: Deferred")), qPrintable(line->text()));
        f.select("opnExpiredTasks");
        QVERIFY2(line->text().endsWith(QStringLiteral("Expired tasks only")), qPrintable(line->text()));
        f.select("opnActiveTasks");
        QVERIFY2(line->text().endsWith(QStringLiteral("Active tasks only")), qPrintable(line->text()));
        f.select("opnAllTasks");
        f.select("opnSpecificDate");
        f.control<QDateEdit>("dtpDueDateTo")->setDate(QDate(2026, 1, 31));
        QVERIFY2(
            line->text().contains(f.control<QDateEdit>("dtpDueDateTo")->text()), qPrintable(line->text()));
        f.select("opnAllDate");
        f.choose("cmbCategories", QStringLiteral("All"));
        f.choose("cmbStatus", QStringLiteral("All"));
        QCOMPARE(line->text(), QStringLiteral("No filter leaves a task out"));
    }

    void afterShowAllTheLineNamesNoFilter()
    {
        TasksPageFixture f;
        f.load();
        f.control<QToolButton>("btnFold")->click();
        f.choose("cmbStatus", QStringLiteral("Deferred"));
        f.page.findChild<TaskFilters*>()->showAll();
        QCOMPARE(f.control<QLabel>("lblFilters")->text(), QStringLiteral("No filter leaves a task out"));
    }

    void aLongNameDoesNotWidenThePageAndIsPlainText()
    {
        TasksPageFixture f;
        f.services.database.addCategory(QStringLiteral("<b>") + QString(200, u'W'), 0);
        f.load();
        const int width = f.page.minimumSizeHint().width();
        f.control<QToolButton>("btnFold")->click();
        auto* categories = f.control<QComboBox>("cmbCategories");
        categories->setCurrentIndex(categories->count() - 1);
        emit categories->activated(categories->currentIndex());
        const auto* line = f.control<QLabel>("lblFilters");
        QCOMPARE(line->textFormat(), Qt::PlainText);
        QVERIFY(line->text().contains(QStringLiteral("<b>")));
        QVERIFY(f.page.minimumSizeHint().width() <= width);
    }
};

AMBERTASK_TEST_MAIN(FilterFoldTest)
#include "tst_filter_fold.moc"
