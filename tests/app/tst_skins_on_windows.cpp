#include "categories/frmCategoryDetails.h"
#include "help/frmAbout.h"
#include "help/window/CompiledHelpWindow.h"
#include "help/window/TopicView.h"
#include "platform/MessageBoxes.h"
#include "reminders/frmAlerts.h"
#include "report/PreviewWindow.h"
#include "support/TestMain.h"
#include "tasks/frmTaskDetails.h"
#include "tests/app/EveryWindow.h"
#include "tests/app/FocusSight.h"
#include "tests/app/Legibility.h"
#include "tests/help/RecordedHelpHost.h"
#include "tests/report/RecordedReportHost.h"
#include "tests/report/ReportSamples.h"

#include <QCalendarWidget>
#include <QCheckBox>
#include <QComboBox>
#include <QDateEdit>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QRadioButton>
#include <QTabWidget>
#include <QTimer>
#include <QToolTip>

/// Fails when there is less to see than `leastTexts` and `leastMarks`, or anything that cannot be read or
/// seen.
#define EXPECT_LEGIBLE(window, owed, leastTexts, leastMarks)                                                 \
    do {                                                                                                     \
        const Legibility seen = lookAt(window, owed);                                                        \
        QVERIFY2(seen.faults.isEmpty(), qPrintable(seen.faults.join(u'\n')));                                \
        QVERIFY2(seen.texts >= (leastTexts) && seen.marks >= (leastMarks),                                   \
            qPrintable(QStringLiteral("%1 texts, %2 marks").arg(seen.texts).arg(seen.marks)));               \
    } while (false)

class SkinsOnWindowsTest : public TestCase
{
    Q_OBJECT

private slots:
    void aFaintTextIsFound();
    void anInvisibleMarkIsFound();

    void thePagesCanBeRead_data() { skins(); }
    void thePagesCanBeRead();
    void theTaskDialogCanBeRead_data() { skins(); }
    void theTaskDialogCanBeRead();
    void theCategoryDialogCanBeRead_data() { skins(); }
    void theCategoryDialogCanBeRead();
    void theAlertCanBeRead_data() { skins(); }
    void theAlertCanBeRead();
    void theAboutBoxCanBeRead_data() { skins(); }
    void theAboutBoxCanBeRead();
    void messageBoxesCanBeRead_data() { skins(); }
    void messageBoxesCanBeRead();
    void theTrayMenuCanBeRead_data() { skins(); }
    void theTrayMenuCanBeRead();
    void openListsCanBeRead_data() { skins(); }
    void openListsCanBeRead();
    void theCalendarCanBeRead_data() { skins(); }
    void theCalendarCanBeRead();
    void toolTipsCanBeRead_data() { skins(); }
    void toolTipsCanBeRead();
    void theHelpCanBeRead_data() { skins(); }
    void theHelpCanBeRead();
    void theReportCanBeReadAndFitsTheScreens_data() { skins(); }
    void theReportCanBeReadAndFitsTheScreens();

    void aHiddenFocusIsFound();
    void theFocusIsSeen_data() { skins(); }
    void theFocusIsSeen();

private:
    static void skins();
};

void SkinsOnWindowsTest::skins()
{
    QTest::addColumn<QString>("skin");
    for (const QString& skin : shippedSkins()) {
        QTest::newRow(qPrintable(skin)) << skin;
    }
}

void SkinsOnWindowsTest::aFaintTextIsFound()
{
    QLabel label(QStringLiteral("Grey on grey"));
    const auto faultsInGrey = [&label](int grey) {
        label.setStyleSheet(QStringLiteral("background: #808080; color: rgb(%1,%1,%1)").arg(grey));
        label.show();
        return lookAt(label, 4.5).faults;
    };
    QCOMPARE(faultsInGrey(0), QStringList());
    QCOMPARE(faultsInGrey(30).value(0), QStringLiteral("QLabel  \"Grey on grey\": 4.22 of 4.5"));
    QVERIFY(faultsInGrey(128).value(0).endsWith(QStringLiteral("1.00 of 4.5")));
}

void SkinsOnWindowsTest::anInvisibleMarkIsFound()
{
    QCheckBox box;
    box.setChecked(true);
    box.show();
    QCOMPARE(lookAt(box, 4.5).faults, QStringList());
    box.setStyleSheet(
        QStringLiteral("QCheckBox { background: #ffffff; } QCheckBox::indicator { background: #ffffff; }"));
    QCOMPARE(lookAt(box, 4.5).faults.size(), 2);
}

void SkinsOnWindowsTest::thePagesCanBeRead()
{
    QFETCH(const QString, skin);
    SkinnedProgram f(skin);
    f.grid(f.main())->selectOnly(1);
    auto* tabs = f.control<QTabWidget>(f.main(), "tabMain");
    for (int page = 0; page < tabs->count(); ++page) {
        tabs->setCurrentIndex(page);
        EXPECT_LEGIBLE(f.main(), f.owed, 10, page == 1 ? 0 : 5);
    }
    tabs->setCurrentIndex(0);
    f.control<QRadioButton>(f.main(), "opnSpecificDate")->click();
    EXPECT_LEGIBLE(f.main(), f.owed, 30, 10);
}

void SkinsOnWindowsTest::theTaskDialogCanBeRead()
{
    QFETCH(const QString, skin);
    SkinnedProgram f(skin);
    f.press(f.main(), "btnTaskAdd");
    frmTaskDetails& dialog = f.program.taskDetails();
    f.control<QLineEdit>(dialog, "txtTask")->setText(QStringLiteral("Call back"));
    EXPECT_LEGIBLE(dialog, f.owed, 20, 10);
    f.control<QCheckBox>(dialog, "chkEnableReminder")->click();
    f.control<QCheckBox>(dialog, "chkReminderSound")->click();
    f.control<QLineEdit>(dialog, "txtReminderSound")->setText(QStringLiteral("bell.wav"));
    EXPECT_LEGIBLE(dialog, f.owed, 20, 10);
}

void SkinsOnWindowsTest::theCategoryDialogCanBeRead()
{
    QFETCH(const QString, skin);
    SkinnedProgram f(skin);
    f.press(f.main(), "btnAddCat");
    EXPECT_LEGIBLE(f.program.categoryDetails(), f.owed, 5, 1);
}

void SkinsOnWindowsTest::theAlertCanBeRead()
{
    QFETCH(const QString, skin);
    SkinnedProgram f(skin);
    QVERIFY(f.program.alerts().isVisible());
    EXPECT_LEGIBLE(f.program.alerts(), f.owed, 12, 3);
    f.grid(f.program.alerts())->selectOnly(0);
    EXPECT_LEGIBLE(f.program.alerts(), f.owed, 12, 3);
}

void SkinsOnWindowsTest::theAboutBoxCanBeRead()
{
    QFETCH(const QString, skin);
    SkinnedProgram f(skin);
    f.menu("mnuAbout")->trigger();
    auto* about = openWindow<frmAbout>();
    QVERIFY(about != nullptr);
    EXPECT_LEGIBLE(*about, f.owed, 6, 0);
}

void SkinsOnWindowsTest::messageBoxesCanBeRead()
{
    QFETCH(const QString, skin);
    SkinnedProgram f(skin);
    Legibility seen;
    QTimer::singleShot(0, this, [&] {
        QWidget* box = QApplication::activeModalWidget();
        seen = lookAt(*box, f.owed);
        box->close();
    });
    ScreenMessageBoxes().ask(&f.main(), QStringLiteral("Are you sure you want to delete this task?"));
    QVERIFY2(seen.faults.isEmpty(), qPrintable(seen.faults.join(u'\n')));
    QCOMPARE(seen.texts, 3);
}

void SkinsOnWindowsTest::theTrayMenuCanBeRead()
{
    QFETCH(const QString, skin);
    SkinnedProgram f(skin);
    auto* menu = f.main().findChild<QMenu*>(QStringLiteral("mnuTray"));
    f.menu("mnuFeedBack")->setEnabled(false);
    menu->popup(QPoint(10, 10));
    menu->setActiveAction(f.menu("mnuAbout"));
    EXPECT_LEGIBLE(*menu, f.owed, 5, 0);
    menu->close();
}

void SkinsOnWindowsTest::openListsCanBeRead()
{
    QFETCH(const QString, skin);
    SkinnedProgram f(skin);
    for (const char* name : {"cmbCategories", "cmbStatus", "cmbSort"}) {
        auto* combo = f.control<QComboBox>(f.main(), name);
        combo->showPopup();
        EXPECT_LEGIBLE(*combo->view()->window(), f.owed, combo->count(), 0);
        combo->hidePopup();
    }
}

void SkinsOnWindowsTest::theCalendarCanBeRead()
{
    QFETCH(const QString, skin);
    SkinnedProgram f(skin);
    f.control<QRadioButton>(f.main(), "opnSpecificDate")->click();
    auto* picker = f.control<QDateEdit>(f.main(), "dtpDueDateFrom");
    QTest::mouseClick(picker, Qt::LeftButton, {}, QPoint(picker->width() - 12, picker->height() / 2));
    QTRY_VERIFY(QApplication::activePopupWidget() != nullptr);
    // Six weeks, their head, month and year; the arrows to the months beside it.
    EXPECT_LEGIBLE(*QApplication::activePopupWidget(), f.owed, 51, 2);
    QApplication::activePopupWidget()->close();
}

void SkinsOnWindowsTest::toolTipsCanBeRead()
{
    QFETCH(const QString, skin);
    const SkinnedProgram f(skin);
    QToolTip::showText(QPoint(20, 20), QStringLiteral("Appointments"));
    QWidget* tip = nullptr;
    for (QWidget* window : QApplication::topLevelWidgets()) {
        tip = window->isVisible() && window->windowType() == Qt::ToolTip ? window : tip;
    }
    QVERIFY(tip != nullptr);
    EXPECT_LEGIBLE(*tip, f.owed, 1, 0);
    QToolTip::hideText();
    QTRY_VERIFY(!QToolTip::isVisible());
}

void SkinsOnWindowsTest::theHelpCanBeRead()
{
    QFETCH(const QString, skin);
    const SkinnedProgram f(skin);
    RecordedHelpHost host;
    CompiledHelpWindow window(host, [] { return false; });
    window.setFile(QStringLiteral(AMBERTASK_HELP_FILE));
    window.showContents();
    window.show();
    EXPECT_LEGIBLE(window, f.owed, 20, 1);
    window.showIndex();
    EXPECT_LEGIBLE(window, f.owed, 20, 1);
    window.showSearch();
    EXPECT_LEGIBLE(window, f.owed, 10, 0);
}

void SkinsOnWindowsTest::aHiddenFocusIsFound()
{
    QWidget window;
    QCheckBox box(QStringLiteral("Show grid"), &window);
    window.show();
    QVERIFY(QTest::qWaitForWindowActive(&window));
    QCOMPARE(lookForFocus(window).controls, 1);
    QCOMPARE(lookForFocus(window).faults, QStringList());
    box.setStyleSheet(QStringLiteral("QCheckBox { background: white; color: black; outline: none; }"));
    QCOMPARE(lookForFocus(window).faults.size(), 1);
}

void SkinsOnWindowsTest::theFocusIsSeen()
{
    QFETCH(const QString, skin);
    SkinnedProgram program(skin);
    int seen = 0;
    visitEveryWindow(program, [&seen](const QString& name, QWidget& window) {
        window.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&window));
        const FocusSight sight = lookForFocus(window);
        seen += sight.controls;
        QVERIFY2(sight.faults.isEmpty(), qPrintable(name + u'\n' + sight.faults.join(u'\n')));
    });
    QVERIFY2(seen > 100, qPrintable(QString::number(seen)));
}

void SkinsOnWindowsTest::theReportCanBeReadAndFitsTheScreens()
{
    QFETCH(const QString, skin);
    const SkinnedProgram f(skin);
    RecordedReportHost host;
    PreviewWindow window(host, [] { return true; });
    window.setContent(contentOf(recordsOf(60)));
    window.show();
    // A small screen, and one of 1280 pixels that is scaled by 1.5, both without frame and panel.
    for (const QSize screen : {QSize(1004, 590), QSize(833, 480)}) {
        window.resize(screen);
        QCoreApplication::processEvents();
        QCOMPARE(window.size(), screen);
        window.goToPage(1);
        EXPECT_LEGIBLE(window, f.owed, 16, 5);
        window.goToPage(0);
        QVERIFY(!window.findChild<QPushButton*>(QStringLiteral("btnFirstPage"))->isEnabled());
        EXPECT_LEGIBLE(window, f.owed, 16, 5);
    }
}

AMBERTASK_TEST_MAIN(SkinsOnWindowsTest)
#include "tst_skins_on_windows.moc"
