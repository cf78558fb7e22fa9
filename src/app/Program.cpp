#include "app/Program.h"

#include "app/FindField.h"
#include "app/FixedPictures.h"
#include "app/TasksPage.h"
#include "app/TrayNews.h"
#include "app/WindowState.h"
#include "app/drTasks.h"
#include "categories/CategoriesPage.h"
#include "categories/frmCategoryDetails.h"
#include "data/DataFileCopies.h"
#include "data/SettingsStore.h"
#include "data/TaskFilter.h"
#include "exchange/window/FileExchange.h"
#include "help/frmAbout.h"
#include "reminders/frmAlerts.h"
#include "settings/MaintenancePage.h"
#include "settings/SettingsPage.h"
#include "settings/frmCopies.h"
#include "system/Clock.h"
#include "system/ErrorReport.h"
#include "system/Registry.h"
#include "tasks/frmTaskDetails.h"
#include "widgets/GridView.h"
#include "widgets/MessageBoxes.h"
#include "widgets/WindowPlacement.h"
#include "widgets/clsGuiLoader.h"

#include <QApplication>
#include <QTimer>
#include <utility>

namespace
{

using namespace std::chrono_literals;

constexpr std::chrono::milliseconds LongestWaitForThePaint = 1s;

/// The context numbers of the help file's topics.
enum HelpContext { TasksHelp, CategoriesHelp, SettingsHelp, MaintenanceHelp, AlertHelp };

/// Collects failures, to be reported later.
class CollectedErrors final : public ErrorReport
{
public:
    void report(const QString& text) override { m_texts.append(text); }
    const QStringList& texts() const { return m_texts; }

private:
    QStringList m_texts;
};

} // namespace

Program::Program(const Machine& machine)
    : m_machine(machine), m_engine(machine.engine),
      m_dayCopy(m_engine, [this](const QString& why) { tellNoCopy(why); }),
      m_files(machine.engine.programFolder, machine.shippedFolder),
      m_undo(m_engine), m_services{m_engine, *machine.engine.clock, machine.messages, machine.fileDialogs,
                            machine.errors, machine.shell, *this, m_images,
                            [this] { return m_settings.always_on_top; }, m_files, m_undo},
      m_skins(m_files, machine.messages), m_helpViewer(machine.helpWindow, m_services)
{
    m_engine.unreadable = &m_unreadable;
    m_engine.foreign = &m_foreign;
    m_engine.copies = &m_dayCopy;
    m_engine.repeating = &m_repeating;
    appendFixedPictures(m_images);
}

Program::~Program() = default;

void Program::start(const std::function<bool()>& noteFirstStart)
{
    DatabaseEngine engine = m_machine.engine;
    engine.repeating = &m_repeating;
    const DataFileCopies dataFile(engine);
    dataFile.keepPrivate();
    dataFile.leaveWriteAheadMode();
    dataFile.bringUp();
    m_settings = SettingsStore(m_engine).read();
    const bool isSkinLoaded = m_skins.load(m_settings.skin, Skins::Asked::AtStart);
    if (noteFirstStart()) {
        writeRunEntry(m_machine.registry, m_machine.engine.programFolder);
    }
    makeMainWindow();
    // Last: under a style sheet a control is laid out again for every parent that it gets, which took a
    // third of a start.
    if (isSkinLoaded) {
        m_skins.apply();
    }
    m_windowState->restore();
    m_main->Form_Load();
    m_helpViewer.SetHelpFile(m_files.find(QStringLiteral("Ambertask1.1.chm")));
    // Also when the program starts hidden or its window is never activated: reminders must come. If the
    // window is about to appear, it comes first; mapped later it would cover the alert.
    QTimer::singleShot(m_main->isShown() ? LongestWaitForThePaint : 0ms, this, &Program::loadDialogs);
}

void Program::onFirstPainted()
{
    loadDialogs();
    // After the dialogs are loaded: an open box must not hold up the checker.
    m_hasBeenSeen = true;
    tellUnreadableRecords();
    tellUnreadablePictures();
}

void Program::makeMainWindow()
{
    auto* settingsPage = new SettingsPage(m_services, m_settings, m_machine.registry, m_skins, *this);
    MainWindowPages pages;
    pages.settings = settingsPage;
    pages.tasks = new TasksPage(m_services, [settingsPage] {
        return TaskColumns{settingsPage->showStatusChecked(), settingsPage->showDueDateChecked(),
            settingsPage->showPeriorityChecked(), settingsPage->showReminderChecked()};
    });
    pages.categories = new CategoriesPage(
        m_services, [this]() -> frmCategoryDetails& { return categoryDetails(); }, m_machine.pictureReader);
    pages.maintenance = new MaintenancePage(m_services);
    m_main = std::make_unique<frmMain>(m_services, m_settings, static_cast<MainWindowHost&>(*this), pages);

    m_windowState = std::make_unique<WindowState>(
        m_machine.stateFile, *m_main, *pages.tasks->grid(), pages.tasks->fold());
    m_skins.reportOn(m_main.get());
    ErrorReport& errors = m_machine.errors;
    connect(m_main.get(), &frmMain::firstPainted, this, &Program::onFirstPainted, Qt::QueuedConnection);
    connect(m_main.get(), &frmMain::activated, this, &Program::loadDialogs, Qt::QueuedConnection);
    connect(m_main.get(), &frmMain::exitRequested, this, &Program::end);
    connectGuarded(
        pages.categories, &CategoriesPage::categoriesChanged, this, &Program::onCategoriesChanged, errors);
    connect(pages.categories, &CategoriesPage::pictureCame, this, &Program::onPictureCame);
    connect(pages.categories, &CategoriesPage::picturesRead, this, &Program::tellUnreadablePictures);
    // Not guarded: a failed reload ends a restore silently, and onDataRestored() lets no exception out.
    connect(pages.maintenance, &MaintenancePage::dataRestored, this, &Program::onDataRestored);
    // Windows replaces no file that is open. The report shows what it has read.
    connect(pages.maintenance, &MaintenancePage::dataFileToBeReplaced, this, [this] {
        if (m_report != nullptr) {
            m_report->DataReport_QueryClose();
        }
    });
    connectGuarded(&m_undo, &UndoHistory::dataChanged, this, &Program::onDataChanged, errors);
    connectGuarded(pages.maintenance, &MaintenancePage::exportRequested, this, &Program::exportTasks, errors);
    connectGuarded(pages.maintenance, &MaintenancePage::importRequested, this, &Program::importTasks, errors);
    connectGuarded(pages.maintenance, &MaintenancePage::copiesRequested, this, &Program::showCopies, errors);
    connectGuarded(pages.maintenance, &MaintenancePage::tasksDeleted, this, &Program::onTasksDeleted, errors);
    connectGuarded(pages.tasks, &TasksPage::addRequested, this, &Program::addTask, errors);
    connectGuarded(pages.tasks, &TasksPage::editRequested, this, &Program::editTask, errors);
    // Queued behind everything that follows a load: the other lists must not wait for the user's answer.
    connect(
        pages.tasks, &TasksPage::tasksLoaded, this, &Program::tellUnreadableRecords, Qt::QueuedConnection);
    connect(pages.tasks, &TasksPage::tasksChanged, this, &Program::onTasksChanged);
    connectGuarded(pages.tasks, &TasksPage::printRequested, this, &Program::printTasks, errors);

    connectHelp(pages);
}

void Program::connectHelp(const MainWindowPages& pages)
{
    ErrorReport& errors = m_machine.errors;
    connectGuarded(m_main.get(), &frmMain::aboutRequested, this, &Program::showAbout, errors);
    connect(m_main.get(), &frmMain::helpRequested, this, [this] { m_helpViewer.ShowContents(); });
    connect(pages.tasks, &TasksPage::helpRequested, this, [this] { m_helpViewer.ShowContext(TasksHelp); });
    connect(pages.categories, &CategoriesPage::helpRequested, this,
        [this] { m_helpViewer.ShowContext(CategoriesHelp); });
    connect(pages.settings, &SettingsPage::helpRequested, this,
        [this] { m_helpViewer.ShowContext(SettingsHelp); });
    connect(pages.maintenance, &MaintenancePage::helpRequested, this,
        [this] { m_helpViewer.ShowContext(MaintenanceHelp); });
    pages.categories->setHelpEnabled(true);
    pages.settings->setHelpEnabled(true);
    pages.maintenance->setHelpEnabled(true);
}

void Program::loadDialogs()
{
    // Only once: a dialog that fails now is loaded on first use.
    if (std::exchange(m_dialogsLoaded, true)) {
        return;
    }
    m_main->addTrayIcon();
    // Not before the main window is on the screen: a window icon has many pictures, some of them large.
    QApplication::setWindowIcon(programWindowIcon());
    m_main->wakePages();
    addFindField(m_main->tabs(), *m_main->tasksPage());
    m_main->categoriesPage()->readPictures();
    // The alert window must exist even if a dialog cannot be loaded, and before the user has read why:
    // without it there are no reminders.
    CollectedErrors errors;
    errors.guard([this] { taskDetails(); });
    errors.guard([this] { categoryDetails(); });
    errors.guard([this] { alerts(); });
    // Pending events run between the files and may open boxes.
    m_main->settingsPage()->completeSkinsList();
    for (const QString& text : errors.texts()) {
        if (!m_ending) {
            m_machine.errors.report(text);
        }
    }
}

frmTaskDetails& Program::taskDetails()
{
    if (m_taskDetails == nullptr) {
        const TaskDetailsHost& host = *this;
        m_taskDetails = std::make_unique<frmTaskDetails>(m_services, host);
        ErrorReport& errors = m_machine.errors;
        connectGuarded(
            m_taskDetails.get(), &frmTaskDetails::taskStored, this, &Program::onTaskStored, errors);
        connectGuarded(m_taskDetails.get(), &frmTaskDetails::taskSaved, this, &Program::onTaskSaved, errors);
        connectGuarded(
            m_taskDetails.get(), &frmTaskDetails::cancelled, this, &Program::onTaskCancelled, errors);
    }
    return *m_taskDetails;
}

frmCategoryDetails& Program::categoryDetails()
{
    if (m_categoryDetails == nullptr) {
        m_categoryDetails = std::make_unique<frmCategoryDetails>(m_services);
        ErrorReport& errors = m_machine.errors;
        const frmCategoryDetails* dialog = m_categoryDetails.get();
        connectGuarded(dialog, &frmCategoryDetails::categoryStored, this, &Program::onCategoryStored, errors);
        connectGuarded(dialog, &frmCategoryDetails::categorySaved, this, &Program::onCategorySaved, errors);
        connectGuarded(dialog, &frmCategoryDetails::cancelled, this, &Program::focusCategoryList, errors);
    }
    return *m_categoryDetails;
}

frmAlerts& Program::alerts()
{
    if (m_alerts == nullptr) {
        AlertsHost& host = *this;
        m_alerts =
            std::make_unique<frmAlerts>(m_services, host, m_machine.waveBackend, m_machine.notifications);
        connectGuarded(
            m_alerts.get(), &frmAlerts::remindersDismissed, this, &Program::LoadTasks, m_machine.errors);
        connect(
            m_alerts.get(), &frmAlerts::helpRequested, this, [this] { m_helpViewer.ShowContext(AlertHelp); });
        m_alerts->setHelpEnabled(true);
        // The notification area can vanish while the window is hidden in it; a tick is a moment to notice.
        connect(m_alerts.get(), &frmAlerts::checked, m_main.get(), &frmMain::stayReachable);
        followTime();
        m_alerts->load();
    }
    return *m_alerts;
}

void Program::showAbout()
{
    if (m_about == nullptr) {
        m_about = std::make_unique<frmAbout>(
            m_services, m_machine.registry, AboutPictures{programIcon(), logoIcon()});
        connect(m_about.get(), &frmAbout::unloadRequested, this, [this] {
            // It is still running the handler of its own button.
            m_about.release()->deleteLater();
        });
    }
    if (m_settings.always_on_top) {
        makeTopmost(m_about.get());
    }
    showOwned(m_about.get(), m_main->isShown() ? m_main.get() : nullptr);
}

void Program::addTask(qint16 category)
{
    frmTaskDetails& dialog = taskDetails();
    // So that the question about unsaved input does not come up behind the main window.
    if (m_settings.always_on_top) {
        makeTopmost(&dialog);
    }
    if (!dialog.letGo()) {
        return;
    }
    dialog.EmptyForm();
    if (category != CategoryFilter::All) {
        dialog.selectCategory(category);
    }
    showOwned(&dialog, m_main.get());
}

void Program::editTask(qint16 id)
{
    frmTaskDetails& dialog = taskDetails();
    if (m_settings.always_on_top) {
        makeTopmost(&dialog);
    }
    if (!dialog.letGo()) {
        return;
    }
    dialog.SetTag(id);
    showOwned(&dialog, m_main.get());
}

void Program::openTask(qint16 id)
{
    // From the alert the dialog is never made topmost.
    frmTaskDetails& dialog = taskDetails();
    if (dialog.letGo()) {
        dialog.SetTag(id);
        showOwned(&dialog, m_alerts.get());
    }
}

bool Program::isTaskDialogVisible() const
{
    return m_taskDetails != nullptr && m_taskDetails->isVisible();
}

bool Program::hasNotificationArea() const
{
    return m_machine.hasNotificationArea();
}

int Program::selectedCategoryIndex() const
{
    return m_main->tasksPage()->selectedCategoryIndex();
}

void Program::setTrayCaption(const QString& caption)
{
    m_main->setTrayCaption(caption);
}

QList<QWidget*> Program::windowsBeside() const
{
    QList<QWidget*> windows{m_about.get(), m_report == nullptr ? nullptr : m_report->window(),
        m_exchange == nullptr ? nullptr : m_exchange->window(), m_helpViewer.viewerWindow(), m_copies.get(),
        m_alerts.get()};
    windows.removeAll(nullptr);
    return windows;
}

void Program::placeMainWindow(bool topmost)
{
    m_main->place(topmost);
    if (topmost) {
        // Windows open beside the main window must not vanish behind it.
        for (QWidget* window : windowsBeside()) {
            if (window->isVisible()) {
                makeTopmost(window);
            }
        }
        return;
    }
    // Windows that came up topmost would stay above those of other programs for good. leaveTopmost() keeps
    // them in front of the main window: a reminder must not vanish behind it.
    for (QWidget* window : QList<QWidget*>{m_taskDetails.get(), m_categoryDetails.get()} + windowsBeside()) {
        if (window != nullptr) {
            leaveTopmost(window);
        }
    }
}

void Program::setGridLines(bool shown)
{
    m_main->tasksPage()->setGridLines(shown);
}

void Program::LoadTasks()
{
    m_main->refresh();
}

void Program::setCheckerEnabled(bool enabled)
{
    if (m_alerts != nullptr) {
        m_alerts->setCheckerEnabled(enabled);
    }
}

void Program::end()
{
    m_ending = true;
    if (m_main != nullptr) {
        m_windowState->keep();
        m_main->removeTrayIcon();
        m_main->setEnding();
    }
    emit endRequested();
}

void Program::unload()
{
    m_categoryDetails.reset();
    m_taskDetails.reset();
    m_trayNews.reset();
    m_alerts.reset();
    m_about.reset();
    m_copies.reset();
    m_report.reset();
    m_exchange.reset();
    m_windowState.reset();
    m_main.reset();
    m_helpViewer.Unload();
}
