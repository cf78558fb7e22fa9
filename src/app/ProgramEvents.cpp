#include "app/Program.h"

#include "app/TasksPage.h"
#include "categories/CategoriesPage.h"
#include "categories/frmCategoryDetails.h"
#include "reminders/frmAlerts.h"
#include "settings/SettingsPage.h"
#include "system/PendingEvents.h"
#include "tasks/frmTaskDetails.h"
#include "widgets/GridView.h"
#include "widgets/MessageBoxes.h"
#include "widgets/QuietLine.h"
#include "widgets/WindowPlacement.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QSignalBlocker>

// What parts of the program need to know of each other.

void Program::onTaskStored()
{
    m_taskDialogHasKeyboard = m_taskDetails->isActiveWindow();
    if (m_alerts != nullptr && m_alerts->isVisible()) {
        m_alerts->tmrTasksChecker_Timer();
    }
}

void Program::onTaskSaved(qint32 id)
{
    bringToFront(m_main.get());
    // The window in front gets the keyboard, not an alert behind it.
    if (m_taskDialogHasKeyboard && m_main->isShown()) {
        activate(m_main.get());
    }
    m_main->LoadTasks();
    if (!m_main->tasksPage()->goToTask(id) && m_taskDetails->tag().isEmpty()) {
        m_main->tasksPage()->quietLine().say(
            tr("The task \"%1\" was added; the filters do not show it").arg(m_taskDetails->taskName()));
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
        // Between the two loads of a long list, which would be too long as one step.
        handlePendingEvents();
        m_main->saveSettings();
    } catch (const RuntimeError&) {
        // A failure after the file was replaced ends the restore silently.
        return;
    }
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
