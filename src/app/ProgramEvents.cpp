#include "app/Program.h"

#include "app/TasksPage.h"
#include "categories/frmCategoryDetails.h"
#include "platform/GridView.h"
#include "platform/WindowPlacement.h"
#include "reminders/frmAlerts.h"
#include "settings/SettingsPage.h"
#include "tasks/frmTaskDetails.h"

// What one part of the program has to hear of another.

void Program::onTaskStored()
{
    if (m_alerts != nullptr && m_alerts->isVisible()) {
        m_alerts->tmrTasksChecker_Timer();
    }
}

void Program::onTaskSaved()
{
    bringToFront(m_main.get());
    m_main->LoadTasks();
}

void Program::onTaskCancelled()
{
    if (m_main->isShown()) {
        m_main->tasksPage()->focusGrid();
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

void Program::forgetRecords()
{
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
        m_main->LoadTasks();
        m_main->LoadCategories();
        reloadCategoryCombos();
        m_main->saveSettings();
    } catch (const RuntimeError&) {
        // What fails after the file has been replaced ends the operation without a word.
        return;
    }
}
