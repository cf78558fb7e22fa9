#include "app/Program.h"

#include "app/TasksPage.h"
#include "app/TrayNews.h"
#include "app/drTasks.h"
#include "categories/CategoriesPage.h"
#include "categories/frmCategoryDetails.h"
#include "data/DataFileRoad.h"
#include "exchange/window/FileExchange.h"
#include "reminders/frmAlerts.h"
#include "settings/MaintenancePage.h"
#include "settings/SettingsPage.h"
#include "settings/frmCopies.h"
#include "system/ErrorReport.h"
#include "system/PendingEvents.h"
#include "tasks/frmTaskDetails.h"
#include "widgets/ChangeTexts.h"
#include "widgets/GridView.h"
#include "widgets/MessageBoxes.h"
#include "widgets/QuietLine.h"
#include "widgets/WindowPlacement.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QSignalBlocker>
#include <QTabWidget>
#include <QTimer>
#include <array>

// What parts of the program need to know of each other.

void Program::onTaskStored()
{
    m_taskDialogHasKeyboard = m_taskDetails->isActiveWindow();
    checkOpenAlert();
}

void Program::onTaskSaved(qint32 id)
{
    bringToFront(m_main.get());
    // The window in front gets the keyboard, not an alert behind it.
    if (m_taskDialogHasKeyboard && m_main->isShown()) {
        activate(m_main.get());
    }
    TasksPage& page = *m_main->tasksPage();
    GridView& grid = *page.grid();
    const int place = grid.currentIndex().row();
    m_main->LoadTasks();
    if (page.goToTask(id)) {
        return;
    }
    const int last = grid.model()->rowCount() - 1;
    if (!grid.currentIndex().isValid() && qMin(place, last) >= 0) {
        // Keys go on from where the task was.
        grid.goTo(qMin(place, last));
    }
    if (m_taskDetails->tag().isEmpty()) {
        page.quietLine().say(
            (page.isHiddenByFind(id) ? tr("The task \"%1\" was added; the search does not show it")
                                     : tr("The task \"%1\" was added; the filters do not show it"))
                .arg(m_taskDetails->taskName()));
    }
}

void Program::onTaskCancelled()
{
    if (m_main->isShown()) {
        m_main->focusTaskGrid();
    } else if (m_alerts != nullptr) {
        m_alerts->focusGrid();
    }
}

void Program::onCategoryStored()
{
    m_main->LoadCategories();
    reloadCategoryCombos();
}

void Program::onCategorySaved()
{
    m_main->LoadTasks();
    focusCategoryList();
}

void Program::onCategoriesChanged()
{
    reloadCategoryCombos();
    m_main->LoadTasks();
    onTasksChanged();
}

void Program::onTasksDeleted()
{
    m_main->LoadTasks();
    onTasksChanged();
}

void Program::onDataChanged()
{
    m_main->LoadCategories();
    onCategoriesChanged();
    if (m_alerts != nullptr) {
        m_alerts->tmrTasksChecker_Timer();
    }
}

drTasks& Program::report()
{
    if (m_report == nullptr) {
        m_report = std::make_unique<drTasks>(
            m_services, m_machine.reportWindow, [this](QWidget* owner, const QList<qint32>& ids) {
                return exchange().exportTasks(owner, {ids});
            });
    }
    return *m_report;
}

void Program::printTasks(const TaskFilter& filter, const ShownTasks& shown)
{
    report().printTasks(filter, m_main.get(), shown);
    tellUnreadableRecords();
}

FileExchange& Program::exchange()
{
    if (m_exchange == nullptr) {
        m_exchange = std::make_unique<FileExchange>(m_services, m_machine.exchange);
        connect(m_exchange.get(), &FileExchange::said, m_main->maintenancePage(), &MaintenancePage::say);
        connectGuarded(
            m_exchange.get(), &FileExchange::imported, this, &Program::onDataChanged, m_machine.errors);
    }
    return *m_exchange;
}

void Program::exportTasks()
{
    exchange().exportAll(m_main->maintenancePage());
}

void Program::importTasks()
{
    exchange().importTasks(m_main->maintenancePage());
}

void Program::onTasksChanged()
{
    checkOpenAlert();
    if (m_alerts != nullptr && m_alerts->isUp()) {
        try {
            // A check does not notice what has fallen due in the place of what has gone.
            m_alerts->showAnew();
        } catch (const RuntimeError&) {
            // As silent as a check that fails.
            return;
        }
    }
}

void Program::checkOpenAlert()
{
    if (m_alerts != nullptr && m_alerts->isUp()) {
        m_alerts->tmrTasksChecker_Timer();
    }
}

void Program::onPictureCame()
{
    for (const QWidget* window : std::initializer_list<const QWidget*>{m_main.get(), m_alerts.get()}) {
        if (window != nullptr) {
            for (const QAbstractItemView* list : window->findChildren<QAbstractItemView*>()) {
                list->viewport()->update();
            }
        }
    }
}

void Program::followTime()
{
    connect(m_alerts.get(), &frmAlerts::checked, this, &Program::followOthers);
    connect(m_alerts.get(), &frmAlerts::checked, m_main->tasksPage(), &TasksPage::followTime);
    m_trayNews = std::make_unique<TrayNews>(m_engine, m_main->trayIcon(), *m_alerts);
    const TrayNews* news = m_trayNews.get();
    connect(m_alerts.get(), &frmAlerts::checked, news, &TrayNews::update);
    // Queued: the list must not wait for what the icon tells.
    const TasksPage* page = m_main->tasksPage();
    connect(page, &TasksPage::tasksLoaded, news, &TrayNews::update, Qt::QueuedConnection);
    connect(page->grid()->model(), &QAbstractItemModel::rowsRemoved, news, &TrayNews::update,
        Qt::QueuedConnection);
}

void Program::followOthers()
{
    if (!m_foreign.arePending() || TasksPage::isUserChoosing()) {
        return;
    }
    const quint32 seen = m_foreign.latest();
    try {
        m_repeating.setUsed(somethingRepeats(m_engine));
        m_main->LoadCategories();
        reloadCategoryCombos();
        {
            // Records that are left out are told when the user does something: a check brings up no box.
            const QSignalBlocker hushed(m_main->tasksPage());
            m_main->tasksPage()->followChanges();
        }
        m_alerts->showAnew();
        if (m_copies != nullptr) {
            m_copies->refresh();
        }
        m_foreign.setShown(seen);
    } catch (const RuntimeError&) {
        // Another process may be writing; the next tick tries again.
        return;
    }
}

void Program::reloadCategoryCombos()
{
    if (m_taskDetails != nullptr) {
        m_taskDetails->reloadCategories();
    }
    m_main->reloadCategoryCombos();
}

void Program::focusCategoryList()
{
    m_main->focusCategoryList();
}

void Program::tellUnreadableRecords()
{
    if (!m_hasBeenSeen || m_ending) {
        return;
    }
    if (m_unreadable.hasCategory()) {
        // Another program has damaged a category: it must not be offered any more.
        m_main->LoadCategories();
        onCategoriesChanged();
    }
    if (const QString text = m_unreadable.takeText(); !text.isEmpty()) {
        m_machine.messages.tell(waitingWindow(), MessageBoxes::Icon::Exclamation, text);
    }
}

void Program::forgetRecords()
{
    m_undo.clear();
    m_unreadable.forget();
    if (m_taskDetails != nullptr) {
        m_taskDetails->forgetTask();
    }
    if (m_categoryDetails != nullptr) {
        m_categoryDetails->forgetCategory();
    }
    if (m_alerts != nullptr) {
        m_alerts->forgetReminders();
    }
    if (m_report != nullptr) {
        m_report->forgetTasks();
    }
}

void Program::onDataRestored()
{
    forgetRecords();
    try {
        {
            // Records that it leaves out are told after the second load, which follows.
            const QSignalBlocker hushed(m_main->tasksPage());
            m_main->LoadTasks();
        }
        m_main->LoadCategories();
        reloadCategoryCombos();
        // The file that took the data file's place counts from another number.
        m_foreign.setShown(m_foreign.latest());
        // Between the two loads of a long list, which would be too long as one step.
        handlePendingEvents();
        m_main->saveSettings();
    } catch (const RuntimeError&) {
        // A failure after the file was replaced ends the restore silently.
        m_main->tasksPage()->forgetUnread();
        return;
    }
}

void Program::hideDialogs()
{
    QWidget* import = m_exchange != nullptr ? m_exchange->window() : nullptr;
    for (QWidget* dialog : std::initializer_list<QWidget*>{
             m_taskDetails.get(), m_categoryDetails.get(), m_copies.get(), import}) {
        if (dialog != nullptr) {
            dialog->hide();
        }
    }
}

void Program::showCopies()
{
    if (m_copies == nullptr) {
        MaintenancePage* page = m_main->maintenancePage();
        m_copies = std::make_unique<frmCopies>(m_services,
            [this, page](const QString& file) { return page->restoreCopy(file, m_copies.get()); });
        connect(page, &MaintenancePage::dataRestored, m_copies.get(), &frmCopies::hide);
        connectGuarded(m_main->tasksPage(), &TasksPage::tasksLoaded, m_copies.get(), &frmCopies::refresh,
            m_machine.errors);
        // What changes tasks without a reload of the list: one is deleted, or put off in the alert.
        connectGuarded(
            &m_undo, &UndoHistory::stepsChanged, m_copies.get(), &frmCopies::refresh, m_machine.errors);
    }
    if (m_settings.always_on_top) {
        makeTopmost(m_copies.get());
    }
    showOwned(m_copies.get(), m_main.get());
}

void Program::tellNoCopy(const QString& why)
{
    QTimer::singleShot(0, this, [this, why] {
        if (m_ending) {
            return;
        }
        const std::array<const QWidget*, 4> pages{
            m_main->tasksPage(), m_main->categoriesPage(), m_main->settingsPage(), m_main->maintenancePage()};
        const QWidget* front = pages.at(static_cast<std::size_t>(m_main->tabs().currentIndex()));
        auto* line = front->findChild<QuietLine*>(QString(), Qt::FindDirectChildrenOnly);
        line->say(ChangeTexts::withNoCopy(line->said(), why));
    });
}

QWidget* Program::waitingWindow() const
{
    if (QWidget* active = QApplication::activeWindow(); active != nullptr) {
        return active;
    }
    if (m_main->isShown()) {
        return m_main.get();
    }
    return m_alerts != nullptr && m_alerts->isVisible() ? m_alerts.get() : nullptr;
}

void Program::tellUnreadablePictures()
{
    if (!m_hasBeenSeen || m_main->categoriesPage()->isReadingPictures()) {
        return;
    }
    const QStringList unreadable = m_main->categoriesPage()->takeUnreadablePictures();
    if (!unreadable.isEmpty()) {
        m_machine.messages.tell(m_main.get(), MessageBoxes::Icon::Exclamation, unreadable.join(u'\n'));
    }
}
