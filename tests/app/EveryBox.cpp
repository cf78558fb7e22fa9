#include "tests/app/EveryBox.h"

#include "categories/frmCategoryDetails.h"
#include "help/window/CompiledHelpWindow.h"
#include "help/window/TopicView.h"
#include "reminders/frmAlerts.h"
#include "report/PreviewWindow.h"
#include "tasks/frmTaskDetails.h"
#include "tests/help/RecordedHelpHost.h"
#include "tests/report/RecordedReportHost.h"
#include "tests/report/ReportSamples.h"
#include "widgets/FileDialogs.h"
#include "widgets/GridView.h"
#include "widgets/MessageBoxes.h"
#include "widgets/ScreenErrorReport.h"
#include "widgets/ScreenProgress.h"
#include "widgets/printing/WindowPrinting.h"

#include <QAbstractItemView>
#include <QComboBox>
#include <QLineEdit>
#include <QMenu>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTabWidget>
#include <QTemporaryDir>
#include <QTimer>

namespace
{

/// Shows the box that `open` opens and waits for.
void visitOpened(const QString& name, const Visit& visit, const std::function<void()>& open)
{
    bool opened = false;
    QTimer::singleShot(0, qApp, [&] {
        QWidget* box = QApplication::activeModalWidget();
        QVERIFY2(box != nullptr, qPrintable(name));
        opened = true;
        settleWindows();
        visit(name, *box);
        box->close();
    });
    open();
    QVERIFY2(opened, qPrintable(name));
}

/// A folder with a folder and two files in it.
struct Folder {
    Folder()
    {
        QDir(place.path()).mkdir(QStringLiteral("older"));
        for (const char* name : {"one.abk", "two.abk"}) {
            QFile file(place.filePath(QLatin1String(name)));
            opened = file.open(QIODevice::WriteOnly) && opened;
        }
    }
    FileDialogRequest request() const
    {
        FileDialogRequest request;
        request.filter = QStringLiteral("Ambertask Backup (*.abk)|*.abk");
        request.initialFolder = place.path();
        request.fileName = QStringLiteral("one.abk");
        return request;
    }

    QTemporaryDir place;
    bool opened = true;
};

/// Entries are read by another thread.
Visit onceFilled(const Visit& visit)
{
    return [visit](const QString& name, QWidget& box) {
        const auto* list = box.findChild<QAbstractItemView*>(QStringLiteral("listView"));
        QVERIFY(list != nullptr);
        QTRY_COMPARE(list->model()->rowCount(list->rootIndex()), 3);
        visit(name, box);
    };
}

/// The pages below open on demand.
Visit withOptions(const Visit& visit)
{
    return [visit](const QString& name, QWidget& box) {
        visit(name, box);
        for (QAbstractButton* button : box.findChildren<QPushButton*>()) {
            if (button->text().startsWith(QStringLiteral("&Options"))) {
                button->click();
            }
        }
        auto* pages = box.findChild<QTabWidget*>();
        QVERIFY(pages != nullptr);
        for (int page = 0; page < pages->count(); ++page) {
            pages->setCurrentIndex(page);
            settleWindows();
            visit(name + QStringLiteral(", ") + pages->tabText(page), box);
        }
    };
}

void visitLists(QWidget& window, const Visit& visit)
{
    for (auto* combo : window.findChildren<QComboBox*>()) {
        if (combo->isVisible()) {
            combo->showPopup();
            settleWindows();
            visit(QStringLiteral("list of ") + combo->objectName(), *combo->view()->window());
            combo->hidePopup();
        }
    }
}

void visitMenu(QMenu* menu, const QString& name, const Visit& visit)
{
    menu->popup(QPoint(10, 10));
    settleWindows();
    visit(name, *menu);
    menu->close();
}

void visitMenuOf(GridView* list, const char* menuName, const Visit& visit)
{
    list->selectOnly(0);
    emit list->menuRequested(QPoint(10, 10));
    auto* menu = list->findChild<QMenu*>(QLatin1String(menuName));
    QVERIFY(menu != nullptr);
    settleWindows();
    visit(QLatin1String(menuName), *menu);
    menu->close();
}

} // namespace

void visitEveryBox(QWidget& owner, const Visit& visit)
{
    ScreenMessageBoxes boxes;
    ScreenErrorReport errors([] {});
    const QString text = QStringLiteral("The file could not be written.");
    visitOpened(QStringLiteral("question"), visit, [&] {
        boxes.ask(&owner,
            QStringLiteral("Are you sure you want to delete '%1' category, all tasks under this category "
                           "will be deleted?")
                .arg(QString(250, u'w')));
    });
    visitOpened(QStringLiteral("question about unsaved input"), visit, [&] {
        boxes.askAboutUnsaved(
            &owner, QStringLiteral("The changes to '%1' are not saved.").arg(QString(250, u'w')));
    });
    visitOpened(QStringLiteral("question about times"), visit, [&] {
        boxes.askWhichTimes(
            &owner, QStringLiteral("The task '%1' repeats. This time, or all?").arg(QString(250, u'w')));
    });
    visitOpened(QStringLiteral("message without a picture"), visit,
        [&] { boxes.tell(&owner, MessageBoxes::Icon::None, text); });
    visitOpened(QStringLiteral("information"), visit,
        [&] { boxes.tell(&owner, MessageBoxes::Icon::Information, text); });
    visitOpened(QStringLiteral("exclamation"), visit,
        [&] { boxes.tell(&owner, MessageBoxes::Icon::Exclamation, text); });
    visitOpened(QStringLiteral("error report"), visit, [&] { errors.report(text); });
    visitOpened(QStringLiteral("report of a failed start"), visit,
        [&] { ScreenErrorReport::reportFailedStart(text); });
    bool cancelled = false;
    ScreenProgress progress(&owner, QStringLiteral("Copying..."), std::chrono::milliseconds(0));
    try {
        progress.run([&](Progress& work) {
            visitOpened(QStringLiteral("progress"), visit, [&] { work.advance(3, 10); });
            work.advance(4, 10);
        });
    } catch (const Cancelled&) {
        cancelled = true;
    }
    QVERIFY(cancelled);
}

void visitQtBoxes(QWidget& owner, const Visit& visit)
{
    const Folder folder;
    QVERIFY(folder.opened);
    const FileDialogRequest request = folder.request();
    visitOpened(QStringLiteral("dialog that opens a file"), onceFilled(visit),
        [&] { ScreenFileDialogs().open(&owner, request); });
    visitOpened(QStringLiteral("dialog that saves a file"), onceFilled(visit),
        [&] { ScreenFileDialogs().save(&owner, request); });
    const PrintRequest print{QStringLiteral("Tasks"), usualPage(), 3, 0, {}};
    visitOpened(
        QStringLiteral("dialog that prints"), withOptions(visit), [&] { printThroughDialog(owner, print); });
}

void visitPopUps(SkinnedProgram& f, const Visit& visit)
{
    auto* tabs = f.control<QTabWidget>(f.main(), "tabMain");
    for (int page = 0; page < tabs->count(); ++page) {
        tabs->setCurrentIndex(page);
        visitLists(f.main(), visit);
    }
    tabs->setCurrentIndex(0);
    visitMenuOf(f.grid(f.main()), "mnuList", visit);
    visitMenuOf(f.grid(f.program.alerts()), "mnuAlert", visit);
    f.press(f.main(), "btnTaskAdd");
    frmTaskDetails& task = f.program.taskDetails();
    visitLists(task, visit);
    auto* name = f.control<QLineEdit>(task, "txtTask");
    name->setText(QStringLiteral("Call back"));
    const std::unique_ptr<QMenu> edits(name->createStandardContextMenu());
    visitMenu(edits.get(), QStringLiteral("menu of a line"), visit);
    name->clear();
    task.hide();
    f.press(f.main(), "btnAddCat");
    const std::unique_ptr<QMenu> lines(
        f.control<QPlainTextEdit>(f.program.categoryDetails(), "txtCatDesc")->createStandardContextMenu());
    visitMenu(lines.get(), QStringLiteral("menu of several lines"), visit);
    f.program.categoryDetails().hide();
    auto* usualMoments = f.control<QPushButton>(f.program.alerts(), "btnUsualMoment")->menu();
    QVERIFY(usualMoments != nullptr);
    visitMenu(usualMoments, QStringLiteral("usual moments"), visit);

    RecordedHelpHost helpHost;
    CompiledHelpWindow help(helpHost, [] { return true; });
    help.setFile(QStringLiteral(AMBERTASK_HELP_FILE));
    help.show();
    const std::unique_ptr<QMenu> reader(help.findChild<TopicView*>()->createStandardContextMenu());
    visitMenu(reader.get(), QStringLiteral("menu of a topic"), visit);
    RecordedReportHost host;
    PreviewWindow report(host, [] { return true; });
    report.setContent(contentOf(recordsOf(3)));
    report.show();
    visitLists(report, visit);
}
