#include "support/ClosedWindow.h"
#include "support/FakeRepeatRules.h"
#include "support/TestMain.h"
#include "support/WheelTurn.h"
#include "tasks/TaskDialog.h"
#include "tasks/frmRepeat.h"
#include "widgets/QuietLine.h"
#include "widgets/WindowPlacement.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDateEdit>
#include <QLocale>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScopeGuard>
#include <QSpinBox>
#include <QTimeEdit>
#include <QWindow>

using Unsaved = MessageBoxes::Unsaved;
using namespace std::chrono_literals;

namespace
{

constexpr int UsualEntries = 9;
constexpr int EveryDay = 1;
constexpr int EveryWeek = 3;
constexpr int NthWeekday = 7;

/// The visible window for other rules; null for none.
frmRepeat* openWindow()
{
    for (QWidget* window : QApplication::topLevelWidgets()) {
        if (auto* found = qobject_cast<frmRepeat*>(window); found != nullptr && found->isVisible()) {
            return found;
        }
    }
    return nullptr;
}

/// Not told by qWaitForWindowActive(), for which a window is active with its owner.
bool comesActive(const QWidget& window)
{
    return QTest::qWaitFor([&window] { return QApplication::activeWindow() == &window; });
}

template <typename Control> Control* partOf(const frmRepeat& window, const char* name)
{
    auto* found = window.findChild<Control*>(QLatin1String(name));
    if (found == nullptr) {
        qFatal("the window has no control %s of that kind", name);
    }
    return found;
}

void press(frmRepeat& window, Qt::Key key)
{
    QTest::keyClick(window.focusWidget(), key);
}

void tick(const frmRepeat& window, const char* name, bool on)
{
    partOf<QCheckBox>(window, name)->setChecked(on);
}

void chooseUnit(const frmRepeat& window, RepeatPattern::Unit unit)
{
    partOf<QComboBox>(window, "cmbUnit")->setCurrentIndex(static_cast<int>(unit));
}

QStringList momentsIn(const frmRepeat& window)
{
    return partOf<QPlainTextEdit>(window, "txtMoments")->toPlainText().split(u'\n', Qt::SkipEmptyParts);
}

} // namespace

class TestTaskRepeat : public TestCase
{
    Q_OBJECT

private slots:
    void aTaskThatNeverRepeatsIsStoredAsBefore();
    void aChosenEntryIsStoredFromTheDueMomentOn();
    void theLeadIsTheTimeFromTheReminderToTheDueMoment();
    void anEntryFollowsTheDueDateAsItIsTyped();
    void howATaskRepeatsIsInputThatCanBeUnsaved();
    void aStoredTaskShowsHowItRepeats();
    void aTaskStoredUntouchedGoesOnWhereItIs();
    void anotherDueMomentBeginsAnew();
    void anotherRuleBeginsAnew();
    void anotherReminderChangesTheLeadOnly();
    void neverEndsIt();
    void emptyingTheFormChoosesNever();
    void whatTheStoreDoesMeanwhileIsKept();

    void customOpensAWindowOverTheDialog();
    void theWindowStaysAboveATopmostDialog();
    void cancellingBringsBackTheFormerEntry_data();
    void cancellingBringsBackTheFormerEntry();
    void whatIsPutTogetherIsAnEntryInWords();
    void enterIsOkFromEveryControl_data();
    void enterIsOkFromEveryControl();
    void aHeldEnterIsNotOk();
    void theWindowShowsTheNextDueMoments();
    void theWindowSaysWhyItCannotCalculate();
    void onlyWhatCountsIsEnabled();
    void theWeekBeginsAsInTheLanguage();
    void aWeekWithoutADayIsToldAndKeepsTheWindow();
    void anEndBeforeTheDueDateIsToldAndKeepsTheWindow();
    void theWindowGoesWithTheDialog();
    void theProgramCanCloseTheWindow();
    void theWheelPassesOverANumber();

private:
    static void choose(const TaskDialog& dialog, int entry)
    {
        auto* combo = dialog.control<QComboBox>("cmbRepeat");
        combo->setCurrentIndex(entry);
        emit combo->activated(entry);
    }
    static frmRepeat& openCustom(const TaskDialog& dialog)
    {
        choose(dialog, dialog.control<QComboBox>("cmbRepeat")->count() - 1);
        if (openWindow() == nullptr || !comesActive(*openWindow())) {
            qFatal("no window for other rules");
        }
        return *openWindow();
    }
    /// Rule, first moment, lead and done of the only task; empty for never.
    static QVariantList repeatOf(const TaskDialog& dialog)
    {
        const auto rows = dialog.services.database.rows(QStringLiteral(
            "select rule,first_moment,lead,done from repeats where of_task in (select task_id from tasks)"));
        return rows.isEmpty() ? QVariantList() : rows.first();
    }
    /// A task that is due at the start of the test, for the fourth time, and reminds 15 minutes before.
    static qint16 addDaily(TaskDialog& dialog)
    {
        const qint32 id = aTask(dialog.services.database)
                              .named(QStringLiteral("task"))
                              .dueAt(fromStart(1h))
                              .remindingAt(fromStart(45min))
                              .add();
        dialog.services.database.sql(
            QStringLiteral("insert into repeats(of_task,rule,first_moment,lead,done) "
                           "values(%1,'FREQ=DAILY;INTERVAL=1','2026-01-12 11:00:00',15,3)")
                .arg(id));
        dialog.repeating.setUsed(true);
        return static_cast<qint16>(id);
    }
};

void TestTaskRepeat::aTaskThatNeverRepeatsIsStoredAsBefore()
{
    TaskDialog dialog;
    dialog.showValid();
    QCOMPARE(dialog.text("cmbRepeat"), QStringLiteral("Never"));
    dialog.click("btnOk");
    QCOMPARE(dialog.stored(QStringLiteral("count(*)")).toInt(), 1);
    QCOMPARE(repeatOf(dialog), QVariantList());
    QVERIFY(!dialog.repeating.isUsed());
}

void TestTaskRepeat::aChosenEntryIsStoredFromTheDueMomentOn()
{
    TaskDialog dialog;
    dialog.showValid();
    choose(dialog, EveryDay);
    dialog.click("btnOk");
    const RepeatPattern daily{RepeatPattern::Unit::Days, 1, {}, {}, {}, {}};
    QCOMPARE(repeatOf(dialog),
        QVariantList({QString::fromStdString(ruleOf(daily, fromStart(1h))), "2026-01-15 11:00:00", 0, 0}));
}

void TestTaskRepeat::theLeadIsTheTimeFromTheReminderToTheDueMoment()
{
    TaskDialog dialog;
    dialog.showValid();
    choose(dialog, EveryDay);
    dialog.click("chkEnableReminder");
    dialog.setMoment("dtpReminderDate", "dtpReminderTime", fromStart(40min));
    dialog.click("btnOk");
    QCOMPARE(repeatOf(dialog).value(2).toInt(), 20);
}

void TestTaskRepeat::anEntryFollowsTheDueDateAsItIsTyped()
{
    TaskDialog dialog;
    dialog.showValid();
    choose(dialog, NthWeekday);
    QCOMPARE(dialog.text("cmbRepeat"), QStringLiteral("Every month on the third Thursday"));
    dialog.control<QDateEdit>("dtpDueDate")->setDate(QDate(2026, 2, 3));
    QCOMPARE(dialog.text("cmbRepeat"), QStringLiteral("Every month on the first Tuesday"));
}

void TestTaskRepeat::howATaskRepeatsIsInputThatCanBeUnsaved()
{
    TaskDialog dialog;
    const qint16 id = addDaily(dialog);
    dialog.form->SetTag(id);
    dialog.show();
    QVERIFY(dialog.form->letGo());
    choose(dialog, EveryWeek);
    dialog.services.dialogs.expectUnsaved(
        QStringLiteral("The changes to 'task' are not saved."), Unsaved::Keep);
    QVERIFY(!dialog.form->letGo());
    choose(dialog, EveryDay);
    QVERIFY(dialog.form->letGo());
}

void TestTaskRepeat::aStoredTaskShowsHowItRepeats()
{
    TaskDialog dialog;
    dialog.form->SetTag(addDaily(dialog));
    QCOMPARE(dialog.text("cmbRepeat"), QStringLiteral("Every day"));
    const qint32 other = aTask(dialog.services.database).add();
    dialog.form->SetTag(static_cast<qint16>(other));
    QCOMPARE(dialog.text("cmbRepeat"), QStringLiteral("Never"));
}

void TestTaskRepeat::aTaskStoredUntouchedGoesOnWhereItIs()
{
    TaskDialog dialog;
    dialog.form->SetTag(addDaily(dialog));
    dialog.show();
    dialog.setText("txtTask", QStringLiteral("renamed"));
    dialog.click("btnOk");
    QCOMPARE(repeatOf(dialog), QVariantList({"FREQ=DAILY;INTERVAL=1", "2026-01-12 11:00:00", 15, 3}));
}

void TestTaskRepeat::anotherDueMomentBeginsAnew()
{
    TaskDialog dialog;
    dialog.form->SetTag(addDaily(dialog));
    dialog.show();
    dialog.control<QTimeEdit>("dtpDueTime")->setTime(QTime(11, 30));
    dialog.click("btnOk");
    QCOMPARE(repeatOf(dialog).mid(1), QVariantList({"2026-01-15 11:30:00", 45, 0}));
}

void TestTaskRepeat::anotherRuleBeginsAnew()
{
    TaskDialog dialog;
    dialog.form->SetTag(addDaily(dialog));
    dialog.show();
    choose(dialog, EveryWeek);
    dialog.click("btnOk");
    QCOMPARE(repeatOf(dialog).mid(1), QVariantList({"2026-01-15 11:00:00", 15, 0}));
}

void TestTaskRepeat::anotherReminderChangesTheLeadOnly()
{
    TaskDialog dialog;
    dialog.form->SetTag(addDaily(dialog));
    dialog.show();
    dialog.control<QTimeEdit>("dtpReminderTime")->setTime(QTime(11, 10));
    dialog.click("btnOk");
    QCOMPARE(repeatOf(dialog), QVariantList({"FREQ=DAILY;INTERVAL=1", "2026-01-12 11:00:00", -10, 3}));
}

void TestTaskRepeat::neverEndsIt()
{
    TaskDialog dialog;
    dialog.form->SetTag(addDaily(dialog));
    dialog.show();
    choose(dialog, 0);
    dialog.click("btnOk");
    QCOMPARE(repeatOf(dialog), QVariantList());
}

void TestTaskRepeat::emptyingTheFormChoosesNever()
{
    TaskDialog dialog;
    dialog.form->SetTag(addDaily(dialog));
    dialog.form->EmptyForm();
    QCOMPARE(dialog.text("cmbRepeat"), QStringLiteral("Never"));
}

void TestTaskRepeat::whatTheStoreDoesMeanwhileIsKept()
{
    TaskDialog dialog;
    dialog.form->SetTag(addDaily(dialog));
    dialog.show();
    dialog.setText("txtTask", QStringLiteral("renamed"));
    dialog.services.database.sql(
        QStringLiteral("update repeats set done=4; update tasks set task_due_date='2026-01-16 11:00:00',"
                       "reminder_date_time='2026-01-16 10:45:00'"));
    dialog.click("btnOk");
    QCOMPARE(dialog.stored(QStringLiteral("task_name")).toString(), QStringLiteral("renamed"));
    QCOMPARE(
        dialog.stored(QStringLiteral("task_due_date")).toString(), QStringLiteral("2026-01-16 11:00:00"));
    QCOMPARE(repeatOf(dialog), QVariantList({"FREQ=DAILY;INTERVAL=1", "2026-01-12 11:00:00", 15, 4}));
}

void TestTaskRepeat::customOpensAWindowOverTheDialog()
{
    TaskDialog dialog;
    dialog.showValid();
    auto* combo = dialog.control<QComboBox>("cmbRepeat");
    combo->setFocus();
    QTest::keyClick(combo, Qt::Key_End);
    frmRepeat* window = openWindow();
    QVERIFY(window != nullptr);
    QVERIFY(comesActive(*window));
    QCOMPARE(window->windowTitle(), QStringLiteral("Repeat"));
    QVERIFY(window->isModal());
    QCOMPARE(window->windowHandle()->transientParent(), dialog.form->windowHandle());
    QCOMPARE(window->focusWidget()->objectName(), QStringLiteral("spnEvery"));
    // The former entry counts meanwhile.
    QCOMPARE(combo->currentText(), QStringLiteral("Never"));
}

void TestTaskRepeat::theWindowStaysAboveATopmostDialog()
{
    TaskDialog dialog;
    dialog.showValid();
    makeTopmost(dialog.form.get());
    frmRepeat& window = openCustom(dialog);
    QVERIFY(isTopmost(&window));
    press(window, Qt::Key_Escape);
    leaveTopmost(dialog.form.get());
    QVERIFY(!isTopmost(&openCustom(dialog)));
}

void TestTaskRepeat::cancellingBringsBackTheFormerEntry_data()
{
    QTest::addColumn<int>("how");
    QTest::newRow("Escape") << 0;
    QTest::newRow("Cancel") << 1;
    QTest::newRow("the close box") << 2;
}

void TestTaskRepeat::cancellingBringsBackTheFormerEntry()
{
    QFETCH(int, how);
    TaskDialog dialog;
    dialog.showValid();
    choose(dialog, EveryWeek);
    dialog.widget("cmbRepeat")->setFocus();
    frmRepeat& window = openCustom(dialog);
    partOf<QSpinBox>(window, "spnEvery")->setValue(7);
    if (how == 0) {
        press(window, Qt::Key_Escape);
    } else if (how == 1) {
        QTest::mouseClick(partOf<QPushButton>(window, "btnCancel"), Qt::LeftButton);
    } else {
        QVERIFY(!closeBySystem(window));
    }
    QVERIFY(openWindow() == nullptr);
    QCOMPARE(dialog.text("cmbRepeat"), QStringLiteral("Every week"));
    QCOMPARE(dialog.control<QComboBox>("cmbRepeat")->count(), UsualEntries + 1);
    QVERIFY(comesActive(*dialog.form));
    QCOMPARE(dialog.focused(), QStringLiteral("cmbRepeat"));
    QCOMPARE(dialog.facts, QStringList());
    // What was given up is not proposed again.
    QCOMPARE(partOf<QSpinBox>(openCustom(dialog), "spnEvery")->value(), 1);
}

void TestTaskRepeat::whatIsPutTogetherIsAnEntryInWords()
{
    TaskDialog dialog;
    dialog.showValid();
    frmRepeat& window = openCustom(dialog);
    chooseUnit(window, RepeatPattern::Unit::Days);
    partOf<QSpinBox>(window, "spnEvery")->setValue(3);
    QTest::mouseClick(partOf<QPushButton>(window, "btnOk"), Qt::LeftButton);
    QVERIFY(openWindow() == nullptr);
    const auto& combo = *dialog.control<QComboBox>("cmbRepeat");
    QCOMPARE(combo.currentIndex(), UsualEntries);
    QCOMPARE(combo.count(), UsualEntries + 2);
    QCOMPARE(combo.currentText(), QStringLiteral("Every 3 days"));
    QCOMPARE(combo.itemText(UsualEntries + 1), QStringLiteral("Custom ..."));
    dialog.click("btnOk");
    QCOMPARE(repeatOf(dialog).value(1).toString(), QStringLiteral("2026-01-15 11:00:00"));
    QVERIFY(repeatOf(dialog).value(0).toString().contains(QLatin1String("INTERVAL=3")));
}

void TestTaskRepeat::enterIsOkFromEveryControl_data()
{
    QTest::addColumn<QString>("name");
    for (const char* name :
        {"spnEvery", "cmbUnit", "chkWeekday1", "cmbEnd", "dtpLastDay", "txtMoments", "btnOk", "btnCancel"}) {
        QTest::newRow(name) << name;
    }
}

void TestTaskRepeat::enterIsOkFromEveryControl()
{
    QFETCH(QString, name);
    TaskDialog dialog;
    dialog.showValid();
    frmRepeat& window = openCustom(dialog);
    partOf<QComboBox>(window, "cmbEnd")->setCurrentIndex(static_cast<int>(RepeatInput::End::Date));
    window.findChild<QWidget*>(name)->setFocus();
    QCOMPARE(window.focusWidget()->objectName(), name);
    press(window, Qt::Key_Return);
    QVERIFY(openWindow() == nullptr);
    QCOMPARE(dialog.control<QComboBox>("cmbRepeat")->currentIndex(), UsualEntries);
    QVERIFY(dialog.form->isVisible());
    QCOMPARE(dialog.facts, QStringList());
}

void TestTaskRepeat::aHeldEnterIsNotOk()
{
    TaskDialog dialog;
    dialog.showValid();
    frmRepeat& window = openCustom(dialog);
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Escape}) {
        QKeyEvent held(QEvent::KeyPress, key, Qt::NoModifier, QString(), true);
        QCoreApplication::sendEvent(window.focusWidget(), &held);
        QVERIFY(window.isVisible());
    }
}

void TestTaskRepeat::theWindowShowsTheNextDueMoments()
{
    TaskDialog dialog;
    dialog.showValid();
    frmRepeat& window = openCustom(dialog);
    chooseUnit(window, RepeatPattern::Unit::Days);
    QCOMPARE(momentsIn(window).size(), 5);
    QVERIFY(momentsIn(window).at(0).startsWith(QLatin1String("Thursday")));
    QVERIFY(momentsIn(window).at(1).startsWith(QLatin1String("Friday")));
    partOf<QSpinBox>(window, "spnEvery")->setValue(2);
    QVERIFY(momentsIn(window).at(1).startsWith(QLatin1String("Saturday")));
    partOf<QComboBox>(window, "cmbEnd")->setCurrentIndex(static_cast<int>(RepeatInput::End::Times));
    partOf<QSpinBox>(window, "spnTimes")->setValue(3);
    QCOMPARE(momentsIn(window).size(), 3);
}

void TestTaskRepeat::theWindowSaysWhyItCannotCalculate()
{
    TaskDialog dialog;
    dialog.repeating = Repeating(missingRepeatRules());
    dialog.showValid();
    frmRepeat& window = openCustom(dialog);
    QCOMPARE(momentsIn(window), QStringList("The module is missing."));
    press(window, Qt::Key_Return);
    QVERIFY(openWindow() == nullptr);
}

void TestTaskRepeat::onlyWhatCountsIsEnabled()
{
    TaskDialog dialog;
    dialog.showValid();
    frmRepeat& window = openCustom(dialog);
    const auto enabled = [&window] {
        QStringList names;
        for (const char* name : {"chkWeekday1", "cmbMonthDay", "dtpLastDay", "spnTimes"}) {
            if (partOf<QWidget>(window, name)->isEnabled()) {
                names.append(QLatin1String(name));
            }
        }
        return names;
    };
    QCOMPARE(enabled(), QStringList("chkWeekday1"));
    chooseUnit(window, RepeatPattern::Unit::Months);
    QCOMPARE(enabled(), QStringList("cmbMonthDay"));
    chooseUnit(window, RepeatPattern::Unit::Years);
    QCOMPARE(enabled(), QStringList());
    partOf<QComboBox>(window, "cmbEnd")->setCurrentIndex(static_cast<int>(RepeatInput::End::Date));
    QCOMPARE(enabled(), QStringList("dtpLastDay"));
    partOf<QComboBox>(window, "cmbEnd")->setCurrentIndex(static_cast<int>(RepeatInput::End::Times));
    QCOMPARE(enabled(), QStringList("spnTimes"));
}

void TestTaskRepeat::theWeekBeginsAsInTheLanguage()
{
    const QLocale before;
    const auto restore = qScopeGuard([before] { QLocale::setDefault(before); });
    QLocale::setDefault(QLocale(QLocale::Arabic, QLocale::Egypt));
    TaskDialog dialog;
    dialog.showValid();
    frmRepeat& window = openCustom(dialog);
    partOf<QWidget>(window, "chkWeekday6")->setFocus();
    for (const char* name : {"chkWeekday6", "chkWeekday7", "chkWeekday1", "chkWeekday2", "chkWeekday3",
             "chkWeekday4", "chkWeekday5"}) {
        QCOMPARE(window.focusWidget()->objectName(), QLatin1String(name));
        press(window, Qt::Key_Tab);
    }
}

void TestTaskRepeat::aWeekWithoutADayIsToldAndKeepsTheWindow()
{
    TaskDialog dialog;
    dialog.showValid();
    frmRepeat& window = openCustom(dialog);
    tick(window, "chkWeekday4", false);
    QCOMPARE(partOf<QuietLine>(window, "lblRefusal")->shown(), QStringLiteral("Please tick a weekday."));
    QCOMPARE(momentsIn(window), QStringList());
    press(window, Qt::Key_Return);
    QVERIFY(window.isVisible());
    QCOMPARE(window.focusWidget()->objectName(), QStringLiteral("chkWeekday7"));
    tick(window, "chkWeekday1", true);
    QCOMPARE(partOf<QuietLine>(window, "lblRefusal")->shown(), QString());
    press(window, Qt::Key_Return);
    QVERIFY(openWindow() == nullptr);
}

void TestTaskRepeat::anEndBeforeTheDueDateIsToldAndKeepsTheWindow()
{
    TaskDialog dialog;
    dialog.showValid();
    frmRepeat& window = openCustom(dialog);
    partOf<QSpinBox>(window, "spnEvery")->setValue(5);
    partOf<QComboBox>(window, "cmbEnd")->setCurrentIndex(static_cast<int>(RepeatInput::End::Date));
    partOf<QDateEdit>(window, "dtpLastDay")->setDate(QDate(2026, 1, 14));
    QCOMPARE(partOf<QuietLine>(window, "lblRefusal")->shown(),
        QStringLiteral("The last day should not be earlier than the due date."));
    QTest::mouseClick(partOf<QPushButton>(window, "btnOk"), Qt::LeftButton);
    QVERIFY(window.isVisible());
    QCOMPARE(window.focusWidget()->objectName(), QStringLiteral("dtpLastDay"));
    QCOMPARE(partOf<QSpinBox>(window, "spnEvery")->value(), 5);
}

void TestTaskRepeat::theWindowGoesWithTheDialog()
{
    TaskDialog dialog;
    dialog.showValid();
    openCustom(dialog);
    dialog.form->hide();
    QVERIFY(openWindow() == nullptr);
    QVERIFY(QApplication::activeModalWidget() == nullptr);
}

void TestTaskRepeat::theProgramCanCloseTheWindow()
{
    TaskDialog dialog;
    dialog.showValid();
    frmRepeat& window = openCustom(dialog);
    QVERIFY(window.close());
    QVERIFY(openWindow() == nullptr);
}

void TestTaskRepeat::theWheelPassesOverANumber()
{
    TaskDialog dialog;
    dialog.showValid();
    frmRepeat& window = openCustom(dialog);
    auto* number = partOf<QSpinBox>(window, "spnEvery");
    number->setValue(5);
    partOf<QWidget>(window, "cmbUnit")->setFocus();
    QVERIFY(!turnWheel(*number));
    QCOMPARE(number->value(), 5);
    number->setFocus();
    QVERIFY(number->hasFocus());
    QVERIFY(turnWheel(*number));
    QCOMPARE(number->value(), 6);
}

AMBERTASK_TEST_MAIN(TestTaskRepeat)
#include "tst_task_repeat.moc"
