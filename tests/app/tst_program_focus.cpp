#include "ProgramFixture.h"
#include "categories/frmCategoryDetails.h"
#include "support/TestMain.h"
#include "tasks/frmTaskDetails.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDateEdit>
#include <QListWidget>
#include <QRadioButton>
#include <QTabBar>
#include <QTabWidget>

namespace
{

enum PageIndex { Tasks, Categories, Settings, Maintenance };

/// Where the keys go.
struct FocusFixture : ProgramFixture {
    bool show()
    {
        start();
        program.loadDialogs();
        return QTest::qWaitForWindowActive(&main());
    }
    QTabWidget& tabs() { return *control<QTabWidget>(main(), "tabMain"); }
    QWidget* focus() { return QApplication::focusWidget(); }
    bool isOnPage()
    {
        return focus() != nullptr && focus()->isVisible() && tabs().currentWidget()->isAncestorOf(focus());
    }
    QString focusName() { return focus() == nullptr ? QString() : focus()->objectName(); }
    void press(int key, Qt::KeyboardModifiers modifiers)
    {
        QTest::keyClick(focus(), Qt::Key(key), modifiers);
    }
};

} // namespace

class ProgramFocusTest : public TestCase
{
    Q_OBJECT

private slots:
    void pagesAreTurnedFromWhateverHasTheFocus_data()
    {
        QTest::addColumn<QString>("control");
        QTest::addColumn<int>("page");
        for (const char* name : {"grdTasks", "cmbStatus", "dtpDueDateFrom", "opnAllTasks", "btnTaskAdd"}) {
            QTest::newRow(name) << QString::fromLatin1(name) << int(Tasks);
        }
        QTest::newRow("lstViewCategories") << QStringLiteral("lstViewCategories") << int(Categories);
        QTest::newRow("cmbSkins") << QStringLiteral("cmbSkins") << int(Settings);
        QTest::newRow("chkShowGrid") << QStringLiteral("chkShowGrid") << int(Settings);
        QTest::newRow("cmbStatusMaintenance") << QStringLiteral("cmbStatusMaintenance") << int(Maintenance);
        QTest::newRow("dtpDateToMaintenance") << QStringLiteral("dtpDateToMaintenance") << int(Maintenance);
    }

    void pagesAreTurnedFromWhateverHasTheFocus()
    {
        QFETCH(QString, control);
        QFETCH(int, page);
        FocusFixture f;
        QVERIFY(f.show());
        f.control<QRadioButton>(f.main(), "opnSpecificDate")->click();
        auto* from = f.main().findChild<QWidget*>(control);
        const auto turn = [&](int key, Qt::KeyboardModifiers modifiers) {
            f.tabs().setCurrentIndex(page);
            from->setFocus();
            f.press(key, modifiers);
            return f.tabs().currentIndex();
        };
        const int next = (page + 1) % 4;
        const int previous = (page + 3) % 4;
        QCOMPARE(turn(Qt::Key_Tab, Qt::ControlModifier), next);
        QVERIFY2(f.isOnPage(), qPrintable(f.focusName()));
        QCOMPARE(turn(Qt::Key_PageDown, Qt::ControlModifier), next);
        QCOMPARE(turn(Qt::Key_Backtab, Qt::ControlModifier | Qt::ShiftModifier), previous);
        QVERIFY2(f.isOnPage(), qPrintable(f.focusName()));
        QCOMPARE(turn(Qt::Key_PageUp, Qt::ControlModifier), previous);
        QCOMPARE(turn(Qt::Key_3, Qt::AltModifier), int(Settings));
    }

    void aDateThatIsHalfTypedCountsWhenThePageIsTurned()
    {
        FocusFixture f;
        QVERIFY(f.show());
        f.control<QRadioButton>(f.main(), "opnSpecificDate")->click();
        auto* picker = f.control<QDateEdit>(f.main(), "dtpDueDateFrom");
        picker->setDate(QDate(2026, 1, 15));
        picker->setFocus();
        picker->setSelectedSection(QDateTimeEdit::DaySection);
        QTest::keyClicks(picker, QStringLiteral("2"));
        f.press(Qt::Key_Tab, Qt::ControlModifier);
        QCOMPARE(f.tabs().currentIndex(), int(Categories));
        QCOMPARE(picker->date(), QDate(2026, 1, 2));
    }

    void theLinksOfTheHeaderDoNotKeepTheKeysWhenThePageIsTurned()
    {
        FocusFixture f;
        QVERIFY(f.show());
        for (int page = Maintenance; page >= Tasks; --page) {
            f.control<QWidget>(f.main(), "lblAmberHeader")->setFocus();
            f.press(Qt::Key_1 + page, Qt::AltModifier);
            QVERIFY2(f.isOnPage(), qPrintable(QStringLiteral("%1 on %2").arg(f.focusName()).arg(page)));
        }
    }

    void thePagesAreTurnedOnTheTabsAsBefore()
    {
        FocusFixture f;
        QVERIFY(f.show());
        f.tabs().setCurrentIndex(Settings);
        f.tabs().tabBar()->setFocus();
        QTest::keyClick(f.tabs().tabBar(), Qt::Key_Right);
        QCOMPARE(f.tabs().currentIndex(), int(Maintenance));
        QVERIFY(f.tabs().tabBar()->hasFocus());
    }

    void afterAHiddenStartTheTaskListHasTheKeys()
    {
        FocusFixture f;
        f.setting(QStringLiteral("minimize_on_start"), 1);
        f.start();
        f.menu("mnuShow")->trigger();
        QVERIFY(QTest::qWaitForWindowActive(&f.main()));
        QCOMPARE(f.focusName(), QStringLiteral("grdTasks"));
    }

    void aWindowThatWasHiddenComesBackWithItsFocus()
    {
        FocusFixture f;
        QVERIFY(f.show());
        f.control<QComboBox>(f.main(), "cmbSort")->setFocus();
        f.menu("mnuShow")->trigger();
        QVERIFY(!f.main().isVisible());
        f.menu("mnuShow")->trigger();
        QCOMPARE(f.main().focusWidget()->objectName(), QStringLiteral("cmbSort"));
    }

    void afterTheCategoryDialogThePageInFrontHasTheKeys_data()
    {
        QTest::addColumn<int>("page");
        QTest::addColumn<QString>("expected");
        QTest::newRow("tasks") << int(Tasks) << QStringLiteral("grdTasks");
        QTest::newRow("categories") << int(Categories) << QStringLiteral("lstViewCategories");
        QTest::newRow("settings") << int(Settings) << QString();
        QTest::newRow("maintenance") << int(Maintenance) << QString();
    }

    void afterTheCategoryDialogThePageInFrontHasTheKeys()
    {
        QFETCH(int, page);
        QFETCH(QString, expected);
        FocusFixture f;
        QVERIFY(f.show());
        f.tabs().setCurrentIndex(Categories);
        f.ProgramFixture::press(f.main(), "btnAddCat");
        frmCategoryDetails& dialog = f.program.categoryDetails();
        QVERIFY(QTest::qWaitForWindowActive(&dialog));
        f.tabs().setCurrentIndex(page);
        dialog.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&dialog));
        f.ProgramFixture::press(dialog, "btnCancel");
        QVERIFY(QTest::qWaitForWindowActive(&f.main()));
        QVERIFY2(f.isOnPage(), qPrintable(f.focusName()));
        if (!expected.isEmpty()) {
            QCOMPARE(f.focusName(), expected);
        }
        // The list has the keys as soon as it can be seen.
        f.tabs().setCurrentIndex(Tasks);
        f.tabs().setCurrentIndex(Categories);
        QCOMPARE(f.focusName(), QStringLiteral("lstViewCategories"));
    }

    void afterTheTaskDialogThePageInFrontKeepsItsControl()
    {
        FocusFixture f;
        QVERIFY(f.show());
        f.ProgramFixture::press(f.main(), "btnTaskAdd");
        frmTaskDetails& dialog = f.program.taskDetails();
        f.tabs().setCurrentIndex(Settings);
        f.control<QComboBox>(f.main(), "cmbSkins")->setFocus();
        f.ProgramFixture::press(dialog, "btnCancel");
        QVERIFY(QTest::qWaitForWindowActive(&f.main()));
        QCOMPARE(f.focusName(), QStringLiteral("cmbSkins"));
        f.tabs().setCurrentIndex(Tasks);
        QCOMPARE(f.focusName(), QStringLiteral("grdTasks"));
    }

    void escapeOfAnEmptyFindFieldStaysOnThePage()
    {
        FocusFixture f;
        QVERIFY(f.show());
        f.tabs().setCurrentIndex(Settings);
        auto* grid = f.control<QCheckBox>(f.main(), "chkShowGrid");
        const bool stored = grid->isChecked();
        grid->click();
        QTest::mouseClick(f.control<QWidget>(f.main(), "txtFind"), Qt::LeftButton);
        QCOMPARE(f.focusName(), QStringLiteral("txtFind"));
        f.press(Qt::Key_Escape, {});
        QCOMPARE(f.tabs().currentIndex(), int(Settings));
        QVERIFY2(f.isOnPage(), qPrintable(f.focusName()));
        QCOMPARE(grid->isChecked(), !stored);
    }
};

AMBERTASK_TEST_MAIN(ProgramFocusTest)
#include "tst_program_focus.moc"
