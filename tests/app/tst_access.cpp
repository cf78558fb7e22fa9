#include "categories/frmCategoryDetails.h"
#include "help/frmAbout.h"
#include "help/window/CompiledHelpWindow.h"
#include "platform/MessageBoxes.h"
#include "platform/ScreenErrorReport.h"
#include "reminders/frmAlerts.h"
#include "report/PreviewWindow.h"
#include "support/TestMain.h"
#include "tasks/frmTaskDetails.h"
#include "tests/app/AccessAudit.h"
#include "tests/app/ProgramFixture.h"
#include "tests/help/RecordedHelpHost.h"
#include "tests/report/RecordedReportHost.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QRadioButton>
#include <QTabWidget>
#include <QTimer>
#include <QVBoxLayout>

using namespace std::chrono_literals;

/// Fails when fewer controls than expected are seen, or one of them lacks something.
#define EXPECT_ACCESSIBLE(window, leastControls)                                                             \
    do {                                                                                                     \
        QVERIFY(QTest::qWaitForWindowActive(&(window)));                                                     \
        int seen = 0;                                                                                        \
        const QStringList faults = accessFaults(window, &seen);                                              \
        QVERIFY2(faults.isEmpty(), qPrintable(faults.join(u'\n')));                                          \
        QVERIFY2(seen >= (leastControls), qPrintable(QString::number(seen)));                                \
    } while (false)

namespace
{

template <typename Window> Window* openWindow()
{
    for (QWidget* window : QApplication::topLevelWidgets()) {
        if (auto* found = dynamic_cast<Window*>(window); found != nullptr && found->isVisible()) {
            return found;
        }
    }
    return nullptr;
}

} // namespace

/// Every window, without a mouse and through assistive technology.
class AccessTest : public TestCase
{
    Q_OBJECT

private slots:
    void whatIsMissingIsFound()
    {
        QWidget window;
        auto* layout = new QVBoxLayout(&window);
        auto* edit = new QLineEdit;
        auto* label = new QLabel(QStringLiteral("Words"));
        auto* first = new QPushButton(QStringLiteral("&Ok"));
        auto* second = new QPushButton(QStringLiteral("&Old"));
        auto* third = new QPushButton(QStringLiteral("Plain"));
        edit->setObjectName(QStringLiteral("edit"));
        third->setObjectName(QStringLiteral("third"));
        third->setFocusPolicy(Qt::NoFocus);
        for (QWidget* widget : std::initializer_list<QWidget*>{label, edit, first, second, third}) {
            layout->addWidget(widget);
        }
        second->setObjectName(QStringLiteral("second"));
        first->setObjectName(QStringLiteral("first"));
        QWidget::setTabOrder(second, first);
        window.show();
        QVERIFY(QTest::qWaitForWindowActive(&window));
        QStringList faults = accessFaults(window);
        faults.sort();
        QStringList expected({"Alt+O is given to \"&Ok\" and \"&Old\"",
            "edit has no label whose mnemonic leads to it", "edit has the accessible name \"\"",
            "the Tab key goes backwards from second to first", "the Tab key never comes to third",
            "third does not take the focus from the Tab key", "third has no mnemonic"});
        expected.sort();
        QCOMPARE(faults, expected);
    }

    void thePagesOfTheMainWindow_data()
    {
        QTest::addColumn<int>("page");
        QTest::addColumn<int>("leastControls");
        QTest::newRow("tasks") << 0 << 16;
        QTest::newRow("categories") << 1 << 8;
        QTest::newRow("settings") << 2 << 17;
        QTest::newRow("maintenance") << 3 << 14;
    }
    void thePagesOfTheMainWindow()
    {
        QFETCH(int, page);
        QFETCH(int, leastControls);
        ProgramFixture f;
        aTask(f.database).add();
        f.start();
        f.control<QTabWidget>(f.main(), "tabMain")->setCurrentIndex(page);
        if (page == 0) {
            f.control<QRadioButton>(f.main(), "opnSpecificDate")->click();
        }
        EXPECT_ACCESSIBLE(f.main(), leastControls);
    }

    void theTaskDialog()
    {
        ProgramFixture f;
        f.start();
        f.press(f.main(), "btnTaskAdd");
        frmTaskDetails& dialog = f.program.taskDetails();
        for (const char* box : {"chkEnableReminder", "chkReminderSound", "chkReminderFile"}) {
            f.control<QCheckBox>(dialog, box)->click();
        }
        EXPECT_ACCESSIBLE(dialog, 18);
    }

    void theCategoryDialog_data()
    {
        QTest::addColumn<QString>("kind");
        QTest::newRow("default icon") << QStringLiteral("opnDefaultIcon");
        QTest::newRow("custom icon") << QStringLiteral("opnCustomIcon");
    }
    void theCategoryDialog()
    {
        QFETCH(QString, kind);
        ProgramFixture f;
        f.start();
        f.press(f.main(), "btnAddCat");
        frmCategoryDetails& dialog = f.program.categoryDetails();
        dialog.findChild<QRadioButton*>(kind)->click();
        EXPECT_ACCESSIBLE(dialog, 19);
    }

    void theAlert()
    {
        ProgramFixture f;
        aTask(f.database).remindingAt(f.database.clock().now() - 1min).add();
        f.start();
        f.program.loadDialogs();
        f.program.alerts().activateWindow();
        EXPECT_ACCESSIBLE(f.program.alerts(), 8);
    }

    void theAboutBox()
    {
        ProgramFixture f;
        f.start();
        f.menu("mnuAbout")->trigger();
        auto* box = openWindow<frmAbout>();
        QVERIFY(box != nullptr);
        EXPECT_ACCESSIBLE(*box, 1);
    }

    void theReport()
    {
        RecordedReportHost host;
        PreviewWindow window(host, [] { return true; });
        window.show();
        EXPECT_ACCESSIBLE(window, 12);
    }

    void theHelp_data()
    {
        QTest::addColumn<int>("tab");
        QTest::newRow("contents") << 0;
        QTest::newRow("index") << 1;
        QTest::newRow("search") << 2;
    }
    void theHelp()
    {
        QFETCH(int, tab);
        RecordedHelpHost host;
        CompiledHelpWindow window(host, [] { return true; });
        window.setFile(QStringLiteral(AMBERTASK_HELP_FILE));
        window.showDefaultTopic();
        window.findChild<QTabWidget*>()->setCurrentIndex(tab);
        window.show();
        EXPECT_ACCESSIBLE(window, 8);
    }

    void questionsAndErrors()
    {
        QStringList faults;
        const auto lookWhileOpen = [&faults] {
            QTimer::singleShot(0, qApp, [&faults] {
                auto* box = openWindow<QMessageBox>();
                QVERIFY(QTest::qWaitForWindowActive(box));
                faults += accessFaults(*box);
                box->reject();
            });
        };
        ScreenMessageBoxes boxes;
        lookWhileOpen();
        QVERIFY(!boxes.ask(nullptr, QStringLiteral("Really?")));
        QVERIFY2(faults.isEmpty(), qPrintable(faults.join(u'\n')));
        lookWhileOpen();
        boxes.tell(nullptr, MessageBoxes::Icon::Information, QStringLiteral("Done."));
        QVERIFY2(faults.isEmpty(), qPrintable(faults.join(u'\n')));
        bool closed = false;
        ScreenErrorReport errors([&closed] { closed = true; });
        lookWhileOpen();
        errors.report(QStringLiteral("Broken"));
        QVERIFY(!closed);
        QVERIFY2(faults.isEmpty(), qPrintable(faults.join(u'\n')));
    }
};

AMBERTASK_TEST_MAIN(AccessTest)
#include "tst_access.moc"
