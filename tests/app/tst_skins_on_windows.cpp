#include "categories/frmCategoryDetails.h"
#include "help/frmAbout.h"
#include "help/window/CompiledHelpWindow.h"
#include "help/window/TopicView.h"
#include "reminders/frmAlerts.h"
#include "report/PreviewWindow.h"
#include "support/Contrast.h"
#include "support/TestMain.h"
#include "tasks/frmTaskDetails.h"
#include "tests/app/DrawnWindow.h"
#include "tests/app/EveryBox.h"
#include "tests/app/FocusSight.h"
#include "tests/app/Legibility.h"
#include "tests/help/RecordedHelpHost.h"
#include "tests/report/RecordedReportHost.h"
#include "tests/report/ReportSamples.h"
#include "widgets/MessageBoxes.h"

#include <QCalendarWidget>
#include <QCheckBox>
#include <QComboBox>
#include <QDateEdit>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QRadioButton>
#include <QTabWidget>
#include <QTableView>
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

namespace
{

/// Fails when the windows that were looked at are not `expected`, when there was less to see on them than
/// `leastTexts` and `leastMarks`, or anything that cannot be read or seen.
#define EXPECT_READ(reader, expected, leastTexts, leastMarks)                                                \
    do {                                                                                                     \
        QVERIFY2((reader).faults.isEmpty(), qPrintable((reader).faults.join(u'\n')));                        \
        QVERIFY2((reader).windows == (expected), qPrintable((reader).windows.join(u'\n')));                  \
        QVERIFY2((reader).texts >= (leastTexts) && (reader).marks >= (leastMarks),                           \
            qPrintable(QStringLiteral("%1 texts, %2 marks").arg((reader).texts).arg((reader).marks)));       \
    } while (false)

constexpr double OwedByMarks = 3;

const QStringList Windows{"page Maintenance", "page Settings", "page Categories", "page Tasks",
    "page with dates", "page with what was done", "page with what was undone", "new task",
    "task with a reminder", "repeating", "repeating that cannot be", "new category",
    "category with a picture", "category whose name is locked", "copies", "alert",
    "alert with a selected row", "about", "question", "question about unsaved input", "question about times",
    "message without a picture", "information", "exclamation", "error report", "report of a failed start",
    "progress", "help contents", "help index", "help search", "help topic with tables",
    "help without its file", "report", "import"};

const QStringList QtBoxes{"dialog that opens a file", "dialog that saves a file", "dialog that prints",
    "dialog that prints, Copies", "dialog that prints, Options"};

const QStringList PopUps{"list of cmbCategories", "list of cmbStatus", "list of cmbSort", "list of cmbSkins",
    "list of cmbCategoriesMaintenance", "list of cmbStatusMaintenance", "mnuList", "mnuAlert",
    "list of cmbCategories", "list of cmbStatus", "list of cmbPeriorities", "list of cmbRepeat",
    "menu of a line", "menu of several lines", "usual moments", "menu of a topic", "list of cmbPaper",
    "list of cmbOrientation", "list of cmbZoom"};

/// Looks at one window after the other.
struct Reader {
    explicit Reader(double contrast) : owed(contrast) { }

    Visit visit()
    {
        return [this](const QString& name, QWidget& window) {
            const Legibility seen = lookAt(window, owed);
            windows.append(name);
            texts += seen.texts;
            marks += seen.marks;
            for (const QString& fault : seen.faults) {
                faults.append(name + QStringLiteral(": ") + fault);
            }
            if (seen.texts == 0) {
                faults.append(name + QStringLiteral(": nothing to read"));
            }
        };
    }

    double owed;
    QStringList windows;
    int texts = 0;
    int marks = 0;
    QStringList faults;
};

} // namespace

class SkinsOnWindowsTest : public TestCase
{
    Q_OBJECT

private slots:
    void aFaintTextIsFound();
    void anInvisibleMarkIsFound();
    void aDisabledButtonOnAnotherGroundIsFound();

    void everyWindowCanBeRead_data() { skins(); }
    void everyWindowCanBeRead();
    void boxesOfQtCanBeRead_data() { skins(); }
    void boxesOfQtCanBeRead();
    void whatDropsDownCanBeRead_data() { skins(); }
    void whatDropsDownCanBeRead();
    void theTrayMenuCanBeRead_data() { skins(); }
    void theTrayMenuCanBeRead();
    void theCalendarCanBeRead_data() { skins(); }
    void theCalendarCanBeRead();
    void toolTipsCanBeRead_data() { skins(); }
    void toolTipsCanBeRead();
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

void SkinsOnWindowsTest::aDisabledButtonOnAnotherGroundIsFound()
{
    QWidget panel;
    auto* button = new QPushButton(QStringLiteral("Browse"), &panel);
    button->move(20, 20);
    button->setEnabled(false);
    const auto faultsOnPanel = [&](const QString& ground) {
        panel.setStyleSheet(
            QStringLiteral("QWidget { background: %1; } QPushButton { background: #171b24; color: #6f798b; }")
                .arg(ground));
        panel.show();
        return lookAt(panel, 4.5).faults;
    };
    QCOMPARE(faultsOnPanel(QStringLiteral("#171b24")), QStringList());
    QCOMPARE(faultsOnPanel(QStringLiteral("#e0e0e0")).size(), 1);
    button->setEnabled(true);
    panel.setStyleSheet(QStringLiteral("QWidget { background: white; } "
                                       "QPushButton { background: black; color: white; }"));
    QCOMPARE(lookAt(panel, 4.5).faults, QStringList());
}

void SkinsOnWindowsTest::everyWindowCanBeRead()
{
    QFETCH(const QString, skin);
    SkinnedProgram f(skin);
    Reader reader(f.owed);
    visitEveryWindow(f, reader.visit());
    EXPECT_READ(reader, Windows, 480, 140);
}

void SkinsOnWindowsTest::boxesOfQtCanBeRead()
{
    QFETCH(const QString, skin);
    SkinnedProgram f(skin);
    Reader reader(f.owed);
    visitQtBoxes(f.main(), reader.visit());
    EXPECT_READ(reader, QtBoxes, 100, 40);
}

void SkinsOnWindowsTest::whatDropsDownCanBeRead()
{
    QFETCH(const QString, skin);
    SkinnedProgram f(skin);
    Reader reader(f.owed);
    visitPopUps(f, reader.visit());
    EXPECT_READ(reader, PopUps, 80, 0);
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
    // Its frame, and the ring around the day of the clock, selected and not.
    QWidget& popup = *QApplication::activePopupWidget();
    auto* calendar = popup.findChild<QCalendarWidget*>();
    auto* days = popup.findChild<QTableView*>();
    QVERIFY(calendar != nullptr && days != nullptr);
    const QImage picture = popup.grab().toImage();
    const QPoint edge(picture.width() - 1, picture.height() * 2 / 3);
    QVERIFY(contrastOf(picture.pixel(edge), picture.pixel(edge - QPoint(2, 0))) >= OwedByMarks);
    const QDate today = toQDate(f.database.clock().now());
    calendar->setSelectedDate(today);
    const QRect cell = days->visualRect(days->selectionModel()->currentIndex());
    const QRect side(cell.left(), cell.top() + 3, 6, cell.height() - 6);
    QVERIFY(DrawnWindow(popup).strongestContrast(*days->viewport(), side) >= OwedByMarks);
    calendar->setSelectedDate(today.addDays(today.day() == 1 ? 1 : -1));
    QVERIFY(DrawnWindow(popup).strongestContrast(*days->viewport(), side) >= OwedByMarks);
    f.database.clock().step(std::chrono::days(40));
    QVERIFY(DrawnWindow(popup).strongestContrast(*days->viewport(), side) < OwedByMarks);
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
