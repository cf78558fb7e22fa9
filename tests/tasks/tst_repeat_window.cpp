#include "support/ClosedWindow.h"
#include "support/TestMain.h"
#include "support/WheelTurn.h"
#include "tasks/RepeatDialog.h"
#include "widgets/QuietLine.h"
#include "widgets/WindowPlacement.h"

#include <QCheckBox>
#include <QDateEdit>
#include <QLocale>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScopeGuard>
#include <QSpinBox>
#include <QWindow>

namespace
{

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

/// The window for repeats that the list in the task dialog does not have.
class TestRepeatWindow : public TestCase
{
    Q_OBJECT

private slots:
    void customOpensAWindowOverTheDialog();
    void theWindowStaysAboveATopmostDialog();
    void cancellingBringsBackTheFormerEntry_data();
    void cancellingBringsBackTheFormerEntry();
    void whatIsPutTogetherIsAnEntryInWords();
    void enterIsOkFromEveryControl_data();
    void enterIsOkFromEveryControl();
    void aHeldEnterIsNotOk();
    void theWindowShowsTheNextDueMoments();
    void onlyWhatCountsIsEnabled();
    void theWeekBeginsAsInTheLanguage();
    void aWeekWithoutADayIsToldAndKeepsTheWindow();
    void anEndBeforeTheDueDateIsToldAndKeepsTheWindow();
    void theWindowGoesWithTheDialog();
    void theProgramCanCloseTheWindow();
    void theWheelPassesOverANumber();
};

void TestRepeatWindow::customOpensAWindowOverTheDialog()
{
    RepeatDialog dialog;
    dialog.showValid();
    auto* combo = dialog.control<QComboBox>("cmbRepeat");
    combo->setFocus();
    QTest::keyClick(combo, Qt::Key_End);
    frmRepeat* window = openRepeatWindow();
    QVERIFY(window != nullptr);
    QVERIFY(comesActive(*window));
    QCOMPARE(window->windowTitle(), QStringLiteral("Repeat"));
    QVERIFY(window->isModal());
    QCOMPARE(window->windowHandle()->transientParent(), dialog.form->windowHandle());
    QCOMPARE(window->focusWidget()->objectName(), QStringLiteral("spnEvery"));
    // The former entry counts meanwhile.
    QCOMPARE(combo->currentText(), QStringLiteral("Never"));
}

void TestRepeatWindow::theWindowStaysAboveATopmostDialog()
{
    RepeatDialog dialog;
    dialog.showValid();
    makeTopmost(dialog.form.get());
    frmRepeat& window = dialog.openCustom();
    QVERIFY(isTopmost(&window));
    press(window, Qt::Key_Escape);
    leaveTopmost(dialog.form.get());
    QVERIFY(!isTopmost(&dialog.openCustom()));
}

void TestRepeatWindow::cancellingBringsBackTheFormerEntry_data()
{
    QTest::addColumn<int>("how");
    QTest::newRow("Escape") << 0;
    QTest::newRow("Cancel") << 1;
    QTest::newRow("the close box") << 2;
}

void TestRepeatWindow::cancellingBringsBackTheFormerEntry()
{
    QFETCH(int, how);
    RepeatDialog dialog;
    dialog.showValid();
    dialog.choose(RepeatEntry::Week);
    dialog.widget("cmbRepeat")->setFocus();
    frmRepeat& window = dialog.openCustom();
    partOf<QSpinBox>(window, "spnEvery")->setValue(7);
    if (how == 0) {
        press(window, Qt::Key_Escape);
    } else if (how == 1) {
        QTest::mouseClick(partOf<QPushButton>(window, "btnCancel"), Qt::LeftButton);
    } else {
        QVERIFY(!closeBySystem(window));
    }
    QVERIFY(openRepeatWindow() == nullptr);
    QCOMPARE(dialog.text("cmbRepeat"), QStringLiteral("Every week"));
    QCOMPARE(dialog.control<QComboBox>("cmbRepeat")->count(), int(RepeatEntry::Count) + 1);
    QVERIFY(comesActive(*dialog.form));
    QCOMPARE(dialog.focused(), QStringLiteral("cmbRepeat"));
    QCOMPARE(dialog.facts, QStringList());
    // What was given up is not proposed again.
    QCOMPARE(partOf<QSpinBox>(dialog.openCustom(), "spnEvery")->value(), 1);
}

void TestRepeatWindow::whatIsPutTogetherIsAnEntryInWords()
{
    RepeatDialog dialog;
    dialog.showValid();
    frmRepeat& window = dialog.openCustom();
    chooseUnit(window, RepeatPattern::Unit::Days);
    partOf<QSpinBox>(window, "spnEvery")->setValue(3);
    QTest::mouseClick(partOf<QPushButton>(window, "btnOk"), Qt::LeftButton);
    QVERIFY(openRepeatWindow() == nullptr);
    const auto& combo = *dialog.control<QComboBox>("cmbRepeat");
    QCOMPARE(combo.currentIndex(), int(RepeatEntry::Count));
    QCOMPARE(combo.count(), int(RepeatEntry::Count) + 2);
    QCOMPARE(combo.currentText(), QStringLiteral("Every 3 days"));
    QCOMPARE(combo.itemText(int(RepeatEntry::Count) + 1), QStringLiteral("Custom ..."));
    dialog.click("btnOk");
    QCOMPARE(dialog.repeat().value(1).toString(), QStringLiteral("2026-01-15 11:00:00"));
    QVERIFY(dialog.repeat().value(0).toString().contains(QLatin1String("INTERVAL=3")));
}

void TestRepeatWindow::enterIsOkFromEveryControl_data()
{
    QTest::addColumn<QString>("name");
    for (const char* name :
        {"spnEvery", "cmbUnit", "chkWeekday1", "cmbEnd", "dtpLastDay", "txtMoments", "btnOk", "btnCancel"}) {
        QTest::newRow(name) << name;
    }
}

void TestRepeatWindow::enterIsOkFromEveryControl()
{
    QFETCH(QString, name);
    RepeatDialog dialog;
    dialog.showValid();
    frmRepeat& window = dialog.openCustom();
    partOf<QComboBox>(window, "cmbEnd")->setCurrentIndex(static_cast<int>(RepeatInput::End::Date));
    window.findChild<QWidget*>(name)->setFocus();
    QCOMPARE(window.focusWidget()->objectName(), name);
    press(window, Qt::Key_Return);
    QVERIFY(openRepeatWindow() == nullptr);
    QCOMPARE(dialog.control<QComboBox>("cmbRepeat")->currentIndex(), int(RepeatEntry::Count));
    QVERIFY(dialog.form->isVisible());
    QCOMPARE(dialog.facts, QStringList());
}

void TestRepeatWindow::aHeldEnterIsNotOk()
{
    RepeatDialog dialog;
    dialog.showValid();
    frmRepeat& window = dialog.openCustom();
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Escape}) {
        QKeyEvent held(QEvent::KeyPress, key, Qt::NoModifier, QString(), true);
        QCoreApplication::sendEvent(window.focusWidget(), &held);
        QVERIFY(window.isVisible());
    }
}

void TestRepeatWindow::theWindowShowsTheNextDueMoments()
{
    RepeatDialog dialog;
    dialog.showValid();
    frmRepeat& window = dialog.openCustom();
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

void TestRepeatWindow::onlyWhatCountsIsEnabled()
{
    RepeatDialog dialog;
    dialog.showValid();
    frmRepeat& window = dialog.openCustom();
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

void TestRepeatWindow::theWeekBeginsAsInTheLanguage()
{
    const QLocale before;
    const auto restore = qScopeGuard([before] { QLocale::setDefault(before); });
    QLocale::setDefault(QLocale(QLocale::Arabic, QLocale::Egypt));
    RepeatDialog dialog;
    dialog.showValid();
    frmRepeat& window = dialog.openCustom();
    partOf<QWidget>(window, "chkWeekday6")->setFocus();
    for (const char* name : {"chkWeekday6", "chkWeekday7", "chkWeekday1", "chkWeekday2", "chkWeekday3",
             "chkWeekday4", "chkWeekday5"}) {
        QCOMPARE(window.focusWidget()->objectName(), QLatin1String(name));
        press(window, Qt::Key_Tab);
    }
}

void TestRepeatWindow::aWeekWithoutADayIsToldAndKeepsTheWindow()
{
    RepeatDialog dialog;
    dialog.showValid();
    frmRepeat& window = dialog.openCustom();
    tick(window, "chkWeekday4", false);
    QCOMPARE(partOf<QuietLine>(window, "lblRefusal")->shown(), QStringLiteral("Please tick a weekday."));
    QCOMPARE(momentsIn(window), QStringList());
    press(window, Qt::Key_Return);
    QVERIFY(window.isVisible());
    QCOMPARE(window.focusWidget()->objectName(), QStringLiteral("chkWeekday7"));
    tick(window, "chkWeekday1", true);
    QCOMPARE(partOf<QuietLine>(window, "lblRefusal")->shown(), QString());
    press(window, Qt::Key_Return);
    QVERIFY(openRepeatWindow() == nullptr);
}

void TestRepeatWindow::anEndBeforeTheDueDateIsToldAndKeepsTheWindow()
{
    RepeatDialog dialog;
    dialog.showValid();
    frmRepeat& window = dialog.openCustom();
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

void TestRepeatWindow::theWindowGoesWithTheDialog()
{
    RepeatDialog dialog;
    dialog.showValid();
    dialog.openCustom();
    dialog.form->hide();
    QVERIFY(openRepeatWindow() == nullptr);
    QVERIFY(QApplication::activeModalWidget() == nullptr);
}

void TestRepeatWindow::theProgramCanCloseTheWindow()
{
    RepeatDialog dialog;
    dialog.showValid();
    frmRepeat& window = dialog.openCustom();
    QVERIFY(window.close());
    QVERIFY(openRepeatWindow() == nullptr);
}

void TestRepeatWindow::theWheelPassesOverANumber()
{
    RepeatDialog dialog;
    dialog.showValid();
    frmRepeat& window = dialog.openCustom();
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

AMBERTASK_TEST_MAIN(TestRepeatWindow)
#include "tst_repeat_window.moc"
