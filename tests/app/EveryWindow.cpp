#include "tests/app/EveryWindow.h"

#include "app/TasksPage.h"
#include "app/UndoBar.h"
#include "categories/frmCategoryDetails.h"
#include "data/KeptCopies.h"
#include "exchange/window/frmImport.h"
#include "help/frmAbout.h"
#include "help/window/CompiledHelpWindow.h"
#include "reminders/frmAlerts.h"
#include "report/PreviewWindow.h"
#include "settings/frmCopies.h"
#include "support/TestPictures.h"
#include "tasks/frmRepeat.h"
#include "tasks/frmTaskDetails.h"
#include "tests/app/EveryBox.h"
#include "tests/exchange/window/RecordedExchange.h"
#include "tests/help/RecordedHelpHost.h"
#include "tests/report/RecordedReportHost.h"
#include "tests/report/ReportSamples.h"
#include "widgets/ComboBox.h"
#include "widgets/QuietLine.h"
#include "widgets/WindowPlacement.h"

#include <QCheckBox>
#include <QDateEdit>
#include <QListView>
#include <QRadioButton>
#include <QScrollBar>
#include <QTabWidget>
#include <QTest>
#include <QTextBrowser>
#include <QTextTable>
#include <QTimer>

namespace
{

void visitPages(SkinnedProgram& f, const Visit& visit)
{
    f.grid(f.main())->selectOnly(1);
    auto* tabs = f.control<QTabWidget>(f.main(), "tabMain");
    for (int page = tabs->count() - 1; page >= 0; --page) {
        tabs->setCurrentIndex(page);
        settleWindows();
        for (QuietLine* line : f.main().findChildren<QuietLine*>()) {
            line->say(QStringLiteral("Backup saved to \"/home/anna/kept.abk\""));
        }
        visit(QStringLiteral("page ") + tabs->tabText(page), f.main());
    }
    f.control<QRadioButton>(f.main(), "opnSpecificDate")->click();
    settleWindows();
    visit(QStringLiteral("page with dates"), f.main());
    f.press(f.program.alerts(), "btnDismiss");
    settleWindows();
    visit(QStringLiteral("page with what was done"), f.main());
    f.main().tasksPage()->undoBar().undo();
    settleWindows();
    visit(QStringLiteral("page with what was undone"), f.main());
}

void visitRepeats(SkinnedProgram& f, const Visit& visit)
{
    auto* repeats = f.control<ComboBox>(f.program.taskDetails(), "cmbRepeat");
    repeats->choose(repeats->count() - 1);
    auto& window = *openWindow<frmRepeat>();
    settleWindows();
    visit(QStringLiteral("repeating"), window);
    f.control<ComboBox>(window, "cmbEnd")->setCurrentIndex(1);
    f.control<QDateEdit>(window, "dtpLastDay")->setDate(QDate(2020, 1, 1));
    settleWindows();
    visit(QStringLiteral("repeating that cannot be"), window);
    f.press(window, "btnCancel");
    settleWindows();
}

void visitDialogs(SkinnedProgram& f, const Visit& visit)
{
    f.press(f.main(), "btnTaskAdd");
    frmTaskDetails& task = f.program.taskDetails();
    settleWindows();
    visit(QStringLiteral("new task"), task);
    f.control<QCheckBox>(task, "chkEnableReminder")->click();
    f.control<QCheckBox>(task, "chkReminderSound")->click();
    f.control<QCheckBox>(task, "chkReminderFile")->click();
    settleWindows();
    visit(QStringLiteral("task with a reminder"), task);
    visitRepeats(f, visit);
    task.hide();
    f.press(f.main(), "btnAddCat");
    frmCategoryDetails& category = f.program.categoryDetails();
    settleWindows();
    visit(QStringLiteral("new category"), category);
    f.control<QRadioButton>(category, "opnCustomIcon")->click();
    settleWindows();
    visit(QStringLiteral("category with a picture"), category);
    f.press(category, "btnCancel");
    // Left to itself, this platform activates no other window.
    f.main().activateWindow();
    settleWindows();
    auto* list = f.control<QListView>(f.main(), "lstViewCategories");
    list->setCurrentIndex(list->model()->index(0, 0));
    f.press(f.main(), "btnEditCat");
    settleWindows();
    QVERIFY(!f.control<QWidget>(category, "txtCatName")->isEnabled());
    visit(QStringLiteral("category whose name is locked"), category);
    category.hide();
}

void visitCopies(SkinnedProgram& f, const Visit& visit)
{
    // The day's own is there already; one cannot be read.
    const KeptCopies kept(f.database.engine());
    kept.keep(CopyOccasion::Deletion);
    const QString damaged = kept.list().first().path;
    f.database.sql(QStringLiteral("delete from tasks where task_name='Buy milk'"));
    kept.keep(CopyOccasion::Restore);
    // The next tick would show what another connection has deleted, whenever it comes.
    f.program.alerts().tmrTasksChecker_Timer();
    writeFile(QFileInfo(damaged).path(), QFileInfo(damaged).fileName(), "no data file");
    f.control<QTabWidget>(f.main(), "tabMain")->setCurrentIndex(3);
    f.press(f.main(), "btnCopies");
    auto& copies = *openWindow<frmCopies>();
    QTRY_VERIFY(!copies.findChild<QTimer*>(QStringLiteral("tmrCompare"))->isActive());
    copies.findChild<QuietLine*>(QStringLiteral("lblCopiesNote"))
        ->say(QStringLiteral("Nothing was restored"));
    settleWindows();
    visit(QStringLiteral("copies"), copies);
    copies.hide();
}

void visitAlert(SkinnedProgram& f, const Visit& visit)
{
    visit(QStringLiteral("alert"), f.program.alerts());
    f.grid(f.program.alerts())->selectOnly(0);
    visit(QStringLiteral("alert with a selected row"), f.program.alerts());
    f.menu("mnuAbout")->trigger();
    settleWindows();
    visit(QStringLiteral("about"), *openWindow<frmAbout>());
}

void scrollToTable(QTextBrowser& topic)
{
    // Asking for the size lays out all of the topic: on a busy machine the scroll bar would end before it.
    QVERIFY(topic.document()->size().height() > 0);
    for (const QTextFrame* frame : topic.document()->rootFrame()->childFrames()) {
        if (qobject_cast<const QTextTable*>(frame) != nullptr) {
            topic.setTextCursor(frame->firstCursorPosition());
            topic.verticalScrollBar()->setValue(
                topic.verticalScrollBar()->value() + topic.cursorRect().top());
            return;
        }
    }
    QFAIL("no table");
}

void visitHelp(const Visit& visit)
{
    RecordedHelpHost helpHost;
    CompiledHelpWindow help(helpHost, [] { return true; });
    help.setFile(QStringLiteral(AMBERTASK_HELP_FILE));
    help.showContents();
    showOwned(&help, nullptr);
    settleWindows();
    visit(QStringLiteral("help contents"), help);
    help.showIndex();
    settleWindows();
    visit(QStringLiteral("help index"), help);
    help.showSearch();
    settleWindows();
    visit(QStringLiteral("help search"), help);
    constexpr int TopicWithTables = 0;
    help.showContext(TopicWithTables);
    settleWindows();
    scrollToTable(*help.findChild<QTextBrowser*>());
    visit(QStringLiteral("help topic with tables"), help);
    help.setFile(QStringLiteral("Missing.chm"));
    settleWindows();
    visit(QStringLiteral("help without its file"), help);
}

void visitReport(const Visit& visit)
{
    RecordedReportHost host;
    PreviewWindow report(host, [] { return true; });
    report.setContent(contentOf(recordsOf(200)));
    showOwned(&report, nullptr);
    settleWindows();
    visit(QStringLiteral("report"), report);
}

void visitImport(const Visit& visit)
{
    frmImport import;
    import.setPlan(QStringLiteral("/home/anna/garden.ics"), samplePlan());
    showOwned(&import, nullptr);
    settleWindows();
    visit(QStringLiteral("import"), import);
}

} // namespace

void visitEveryWindow(SkinnedProgram& program, const Visit& visit)
{
    settleWindows();
    visitPages(program, visit);
    visitDialogs(program, visit);
    visitCopies(program, visit);
    visitAlert(program, visit);
    visitEveryBox(program.main(), visit);
    visitHelp(visit);
    visitReport(visit);
    visitImport(visit);
}

void settleWindows()
{
    // Layouts ask for another round when a scroll bar comes or goes.
    for (int i = 0; i < 3; ++i) {
        QCoreApplication::sendPostedEvents();
        QCoreApplication::processEvents();
    }
}
