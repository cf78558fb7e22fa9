#include "tests/app/EveryWindow.h"

#include "categories/frmCategoryDetails.h"
#include "help/frmAbout.h"
#include "help/window/CompiledHelpWindow.h"
#include "platform/MessageBoxes.h"
#include "platform/WindowPlacement.h"
#include "reminders/frmAlerts.h"
#include "report/PreviewWindow.h"
#include "tasks/frmTaskDetails.h"
#include "tests/help/RecordedHelpHost.h"
#include "tests/report/ReportSamples.h"

#include <QCheckBox>
#include <QRadioButton>
#include <QTabWidget>
#include <QTimer>

namespace
{

using Visit = std::function<void(const QString& name, QWidget& window)>;

class SilentHost final : public ReportHost
{
public:
    QString choosePdfFile(QWidget*) override { return {}; }
    void tellFailure(QWidget*, const QString&) override { }
    void windowClosed() override { }
};

void settle()
{
    // Layouts ask for another round when a scroll bar comes or goes.
    for (int i = 0; i < 3; ++i) {
        QCoreApplication::sendPostedEvents();
        QCoreApplication::processEvents();
    }
}

void visitPages(SkinnedProgram& f, const Visit& visit)
{
    f.grid(f.main())->selectOnly(1);
    auto* tabs = f.control<QTabWidget>(f.main(), "tabMain");
    for (int page = tabs->count() - 1; page >= 0; --page) {
        tabs->setCurrentIndex(page);
        settle();
        visit(QStringLiteral("page ") + tabs->tabText(page), f.main());
    }
    f.control<QRadioButton>(f.main(), "opnSpecificDate")->click();
    settle();
    visit(QStringLiteral("page with dates"), f.main());
}

void visitDialogs(SkinnedProgram& f, const Visit& visit)
{
    f.press(f.main(), "btnTaskAdd");
    frmTaskDetails& task = f.program.taskDetails();
    settle();
    visit(QStringLiteral("new task"), task);
    f.control<QCheckBox>(task, "chkEnableReminder")->click();
    f.control<QCheckBox>(task, "chkReminderSound")->click();
    f.control<QCheckBox>(task, "chkReminderFile")->click();
    settle();
    visit(QStringLiteral("task with a reminder"), task);
    task.hide();
    f.press(f.main(), "btnAddCat");
    frmCategoryDetails& category = f.program.categoryDetails();
    settle();
    visit(QStringLiteral("new category"), category);
    f.control<QRadioButton>(category, "opnCustomIcon")->click();
    settle();
    visit(QStringLiteral("category with a picture"), category);
    category.hide();
    visit(QStringLiteral("alert"), f.program.alerts());
    f.menu("mnuAbout")->trigger();
    settle();
    visit(QStringLiteral("about"), *openWindow<frmAbout>());
}

void visitQuestion(SkinnedProgram& f, const Visit& visit)
{
    QTimer::singleShot(0, &f.main(), [&] {
        QWidget* box = QApplication::activeModalWidget();
        settle();
        visit(QStringLiteral("question"), *box);
        box->close();
    });
    ScreenMessageBoxes().ask(&f.main(),
        QStringLiteral(
            "Are you sure you want to delete '%1' category, all tasks under this category will be deleted?")
            .arg(QString(250, u'w')));
}

void visitModules(const Visit& visit)
{
    RecordedHelpHost helpHost;
    CompiledHelpWindow help(helpHost, [] { return true; });
    help.setFile(QStringLiteral(AMBERTASK_HELP_FILE));
    help.showContents();
    showOwned(&help, nullptr);
    settle();
    visit(QStringLiteral("help contents"), help);
    help.showIndex();
    settle();
    visit(QStringLiteral("help index"), help);
    help.showSearch();
    settle();
    visit(QStringLiteral("help search"), help);
    help.hide();
    SilentHost host;
    PreviewWindow report(host, [] { return true; });
    report.setContent(contentOf(recordsOf(200)));
    showOwned(&report, nullptr);
    settle();
    visit(QStringLiteral("report"), report);
}

} // namespace

void visitEveryWindow(SkinnedProgram& program, const Visit& visit)
{
    settle();
    visitPages(program, visit);
    visitDialogs(program, visit);
    visitQuestion(program, visit);
    visitModules(visit);
}
