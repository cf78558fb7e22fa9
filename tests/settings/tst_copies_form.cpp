#include "data/KeptCopies.h"
#include "settings/frmCopies.h"
#include "support/FileContent.h"
#include "support/TestMain.h"
#include "support/TestServices.h"
#include "widgets/GridView.h"
#include "widgets/QuietLine.h"

#include <QAccessible>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>

using namespace std::chrono_literals;

namespace
{

/// The form over three copies: before the first change of the day (no task), before a deletion (three) and
/// before a restore (two of them changed or gone, one new).
struct FormUnderTest : TestServices {
    FormUnderTest()
    {
        keep(CopyOccasion::Day);
        for (int i = 1; i <= 3; ++i) {
            aTask(database).named(QStringLiteral("task %1").arg(i)).add();
        }
        keep(CopyOccasion::Deletion);
        database.sql(QStringLiteral("delete from tasks where task_id=1"));
        database.sql(QStringLiteral("update tasks set task_name='other' where task_id=2"));
        aTask(database).add();
        keep(CopyOccasion::Restore);
    }

    void keep(CopyOccasion occasion)
    {
        QCOMPARE(KeptCopies(database.engine()).keep(occasion), QString());
        database.clock().step(1min);
    }
    void show()
    {
        form.show();
        QVERIFY(QTest::qWaitForWindowActive(&form));
        settle();
    }
    /// Until everything is compared.
    void settle() const { QTRY_VERIFY(!form.findChild<QTimer*>(QStringLiteral("tmrCompare"))->isActive()); }
    GridView& grid() const { return *form.findChild<GridView*>(QStringLiteral("grdCopies")); }
    QPushButton& button(const char* name) const { return *form.findChild<QPushButton*>(QLatin1String(name)); }
    QString cell(int row, int column) const { return grid().model()->index(row, column).data().toString(); }
    QString said() const { return form.findChild<QuietLine*>(QStringLiteral("lblCopiesNote"))->said(); }
    QString copy(int row) const { return KeptCopies(database.engine()).list()[row].path; }
    void expectQuestion(const QString& moment, bool yes)
    {
        dialogs.expectAsk(
            QStringLiteral("Are you sure you want to restore the copy of %1? Your data as it is now "
                           "is kept as another copy.")
                .arg(moment),
            yes);
    }

    QStringList restored;
    QString answer;
    frmCopies form{services, [this](const QString& file) {
                       restored.append(file);
                       return answer;
                   }};
};

} // namespace

class TestCopiesForm : public TestCase
{
    Q_OBJECT

private slots:
    void theNewestCopyIsFirstAndSelected();
    void whatIsDifferentIsToldInWords();
    void whatIsTheSameIsToldInWords();
    void theRestoreIsAskedForOnce();
    void anythingButYesRestoresNothing();
    void theSelectedCopyIsRestored();
    void aFailureIsSaidAndTheFormStays();
    void aDamagedCopyIsNamedAndNotRestored();
    void theKeysOfTheFormAreEnough();
    void enterOnAButtonDoesWhatTheButtonSays();
    void everyControlHasItsNameAndTip();
    void comparingGoesOneCopyAtATime();
    void aHiddenFormComparesNothing();
    void aChangeIsComparedAnewAndTheSelectionStays();
    void anUnreadableDataFileIsSaid();
    void withoutCopiesTheListSaysSo();
};

void TestCopiesForm::theNewestCopyIsFirstAndSelected()
{
    FormUnderTest test;
    test.show();
    QCOMPARE(test.grid().model()->rowCount(), 3);
    QCOMPARE(test.cell(0, 0), QStringLiteral("1/15/2026 10:02:00 AM"));
    QCOMPARE(test.cell(0, 1), QStringLiteral("Restore"));
    QCOMPARE(test.cell(1, 1), QStringLiteral("Deletion of tasks"));
    QCOMPARE(test.cell(2, 1), QStringLiteral("First change of the day"));
    QCOMPARE(test.cell(2, 0), QStringLiteral("1/15/2026 10:00:00 AM"));
    QCOMPARE(test.grid().selectedRow(), 0);
    QVERIFY(test.grid().hasFocus());
}

void TestCopiesForm::whatIsDifferentIsToldInWords()
{
    FormUnderTest test;
    test.show();
    QCOMPARE(test.cell(1, 2), QStringLiteral("3"));
    QCOMPARE(test.cell(1, 3), QStringLiteral("1 task added, 1 task changed, and 1 task gone"));
    QCOMPARE(test.cell(2, 2), QStringLiteral("0"));
    QCOMPARE(test.cell(2, 3), QStringLiteral("3 tasks added"));
    test.database.sql(QStringLiteral("update categories set cat_name='other' where cat_id=1"));
    test.form.refresh();
    test.settle();
    QCOMPARE(test.cell(2, 3), QStringLiteral("3 tasks added and other categories"));
}

void TestCopiesForm::whatIsTheSameIsToldInWords()
{
    FormUnderTest test;
    test.show();
    QCOMPARE(test.cell(0, 2), QStringLiteral("3"));
    QCOMPARE(test.cell(0, 3), QStringLiteral("nothing changed"));
}

void TestCopiesForm::theRestoreIsAskedForOnce()
{
    FormUnderTest test;
    test.show();
    test.expectQuestion(QStringLiteral("1/15/2026 10:02:00 AM"), true);
    QTest::mouseClick(&test.button("btnRestoreCopy"), Qt::LeftButton);
    QCOMPARE(test.restored, QStringList(test.copy(0)));
}

void TestCopiesForm::anythingButYesRestoresNothing()
{
    FormUnderTest test;
    test.show();
    test.expectQuestion(QStringLiteral("1/15/2026 10:02:00 AM"), false);
    test.button("btnRestoreCopy").click();
    QCOMPARE(test.restored, QStringList());
    QVERIFY(test.form.isVisible());
}

void TestCopiesForm::theSelectedCopyIsRestored()
{
    FormUnderTest test;
    test.show();
    test.grid().selectOnly(2);
    test.expectQuestion(QStringLiteral("1/15/2026 10:00:00 AM"), true);
    test.button("btnRestoreCopy").click();
    QCOMPARE(test.restored, QStringList(test.copy(2)));
    test.restored.clear();
    const QPoint place = test.grid().visualRect(test.grid().model()->index(1, 0)).center();
    QTest::mouseClick(test.grid().viewport(), Qt::LeftButton, {}, place);
    test.expectQuestion(QStringLiteral("1/15/2026 10:01:00 AM"), true);
    QTest::mouseDClick(test.grid().viewport(), Qt::LeftButton, {}, place);
    QCOMPARE(test.restored, QStringList(test.copy(1)));
}

void TestCopiesForm::aFailureIsSaidAndTheFormStays()
{
    FormUnderTest test;
    test.show();
    test.answer = QStringLiteral("Nothing was restored: the disk is full");
    test.expectQuestion(QStringLiteral("1/15/2026 10:02:00 AM"), true);
    test.button("btnRestoreCopy").click();
    QCOMPARE(test.said(), test.answer);
    QVERIFY(test.form.isVisible());
}

void TestCopiesForm::aDamagedCopyIsNamedAndNotRestored()
{
    FormUnderTest test;
    writeText(test.copy(1), "Dear Sir or Madam");
    test.show();
    QCOMPARE(test.cell(1, 2), QString());
    QCOMPARE(test.cell(1, 3), QStringLiteral("The file is damaged."));
    QVERIFY(test.button("btnRestoreCopy").isEnabled());
    test.grid().selectOnly(1);
    QVERIFY(!test.button("btnRestoreCopy").isEnabled());
    QTest::keyClick(&test.grid(), Qt::Key_Return);
    QCOMPARE(test.restored, QStringList());
    test.grid().selectOnly(2);
    QVERIFY(test.button("btnRestoreCopy").isEnabled());
}

void TestCopiesForm::theKeysOfTheFormAreEnough()
{
    FormUnderTest test;
    test.show();
    QTest::keyClick(&test.grid(), Qt::Key_Down);
    test.expectQuestion(QStringLiteral("1/15/2026 10:01:00 AM"), false);
    QTest::keyClick(&test.grid(), Qt::Key_Return);
    test.expectQuestion(QStringLiteral("1/15/2026 10:01:00 AM"), true);
    QTest::keyClick(&test.grid(), Qt::Key_R, Qt::AltModifier);
    QTRY_COMPARE(test.restored, QStringList(test.copy(1)));
    QTest::keyClick(&test.grid(), Qt::Key_Escape);
    QVERIFY(!test.form.isVisible());
    QCOMPARE(test.restored.size(), 1);
}

void TestCopiesForm::enterOnAButtonDoesWhatTheButtonSays()
{
    FormUnderTest test;
    test.show();
    test.button("btnCloseCopies").setFocus();
    QTest::keyClick(&test.button("btnCloseCopies"), Qt::Key_Return);
    QCOMPARE(test.restored, QStringList());
    test.form.show();
    QTest::mouseClick(&test.button("btnCloseCopies"), Qt::LeftButton);
    QVERIFY(!test.form.isVisible());
}

void TestCopiesForm::everyControlHasItsNameAndTip()
{
    FormUnderTest test;
    for (const auto& [name, caption] : {std::pair{"btnRestoreCopy", "Restore"},
             std::pair{"btnCloseCopies", "Close"}, std::pair{"grdCopies", "Copies of your data"}}) {
        auto* control = test.form.findChild<QWidget*>(QLatin1String(name));
        QVERIFY2(control != nullptr, name);
        QCOMPARE(
            QAccessible::queryAccessibleInterface(control)->text(QAccessible::Name), QLatin1String(caption));
    }
    QVERIFY(!test.button("btnRestoreCopy").toolTip().isEmpty());
    QVERIFY(!test.button("btnCloseCopies").toolTip().isEmpty());
    QCOMPARE(test.form.objectName(), QStringLiteral("frmCopies"));
}

void TestCopiesForm::comparingGoesOneCopyAtATime()
{
    FormUnderTest test;
    const QSignalSpy compared(test.grid().model(), &QAbstractItemModel::dataChanged);
    test.form.show();
    QCOMPARE(compared.size(), 0);
    QCOMPARE(test.cell(0, 3), QStringLiteral("is being compared..."));
    // A turn of the event loop does not wait for all.
    for (int turns = 0; compared.isEmpty() && turns < 1000; ++turns) {
        QCoreApplication::processEvents();
    }
    QCOMPARE(compared.size(), 1);
    test.settle();
    QCOMPARE(compared.size(), 3);
}

void TestCopiesForm::aHiddenFormComparesNothing()
{
    FormUnderTest test;
    const QSignalSpy compared(test.grid().model(), &QAbstractItemModel::dataChanged);
    test.form.show();
    test.form.hide();
    test.form.refresh();
    QVERIFY(!test.form.findChild<QTimer*>(QStringLiteral("tmrCompare"))->isActive());
    QCOMPARE(compared.size(), 0);
}

void TestCopiesForm::aChangeIsComparedAnewAndTheSelectionStays()
{
    FormUnderTest test;
    test.show();
    test.grid().selectOnly(1);
    const QString selected = test.copy(1);
    test.database.sql(QStringLiteral("delete from tasks"));
    test.form.refresh();
    QCOMPARE(test.cell(0, 3), QStringLiteral("nothing changed"));
    test.settle();
    QCOMPARE(test.cell(0, 3), QStringLiteral("3 tasks gone"));
    QCOMPARE(test.grid().selectedRow(), 1);
    test.keep(CopyOccasion::Import);
    test.form.refresh();
    test.settle();
    QCOMPARE(test.cell(0, 1), QStringLiteral("Import"));
    QCOMPARE(test.copy(test.grid().selectedRow()), selected);
}

void TestCopiesForm::anUnreadableDataFileIsSaid()
{
    FormUnderTest test;
    writeText(test.database.dataFile(), "no data file any more");
    test.form.show();
    test.settle();
    QVERIFY2(
        test.said().startsWith(QLatin1String("The copies could not be compared: ")), qPrintable(test.said()));
    // That is the best reason for a restore.
    QVERIFY(test.button("btnRestoreCopy").isEnabled());
}

void TestCopiesForm::withoutCopiesTheListSaysSo()
{
    TestServices services;
    frmCopies form(services.services, [](const QString&) { return QString(); });
    form.show();
    auto* grid = form.findChild<GridView*>(QStringLiteral("grdCopies"));
    QVERIFY(!grid->emptyText().isEmpty());
    QCOMPARE(grid->model()->rowCount(), 0);
    QVERIFY(!form.findChild<QPushButton*>(QStringLiteral("btnRestoreCopy"))->isEnabled());
    QTest::keyClick(grid, Qt::Key_Return);
}

AMBERTASK_TEST_MAIN(TestCopiesForm)
#include "tst_copies_form.moc"
