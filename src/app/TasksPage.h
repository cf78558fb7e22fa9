#pragma once

#include "app/TaskListModel.h"
#include "data/TaskFilter.h"
#include "widgets/FormServices.h"

#include <QWidget>
#include <functional>

class ComboBox;
class GridView;
class QBoxLayout;
class QDateEdit;
class QLabel;
class QPushButton;
class QRadioButton;
class QuietLine;

/// The page "Tasks": filters, list and buttons. A change of any filter rebuilds the list at once.
class TasksPage : public QWidget
{
    Q_OBJECT

public:
    /// `shownColumns` returns the optional columns that are checked on the settings page.
    TasksPage(
        const FormServices& services, std::function<TaskColumns()> shownColumns, QWidget* parent = nullptr);

    /// Fills the three filter lists and selects their first entries.
    void fillFilters();
    /// Reloads the category list; the selected category stays selected while it exists.
    void reloadCategories();
    /// Sets both date pickers to today, selects specific dates or all dates, and rebuilds the list.
    void startWith(bool todayOnly);
    /// Rebuilds the list from the filters; the current row stays on its task. Throws DatabaseError, and
    /// then the list is as it was.
    void LoadTasks();

    /// Makes the task's row the current one and scrolls to it. False when the list does not show the task.
    bool goToTask(qint32 id);
    void setGridLines(bool shown);
    /// Gives the focus to the list, and activates its window if it is visible, whichever page is in front.
    void focusGrid();
    /// The same without activating the window.
    void focusList();
    GridView* grid() const { return m_grid; }
    /// The line that says how an action ended.
    QuietLine& quietLine() const { return *m_quietLine; }
    TaskFilter filter() const;
    /// The index of the selected entry of the category filter.
    int selectedCategoryIndex() const;

signals:
    /// "Add" was pressed and there is a category; `category` is the one that the filter shows, or All.
    void addRequested(qint16 category);
    void editRequested(qint16 id);
    /// The list has been rebuilt.
    void tasksLoaded();
    void helpRequested();
    /// "Print" was pressed; the report shows what the filters select.
    void printRequested(const TaskFilter& filter);

private:
    void btnTaskAdd_Click();
    void btnTaskEdit_Click();
    void btnTaskDelete_Click();
    void btnTaskPrint_Click();
    void opnAllDate_Click(bool selected);
    void opnSpecificDate_Click(bool selected);
    void opnTaskType_Click(bool selected);
    void filter_Changed();
    void filterList_Click();

    QWidget* makeFilterFrame();
    QWidget* makeDueDateFrame();
    QWidget* makeTaskTypeFrame();
    QBoxLayout* makeButtonRow();
    void setDatesEnabled(bool enabled);

    const FormServices& m_services;
    std::function<TaskColumns()> m_shownColumns;
    TaskListModel* m_model;
    GridView* m_grid;
    ComboBox* m_categories;
    ComboBox* m_status;
    ComboBox* m_sort;
    QRadioButton* m_allDate;
    QRadioButton* m_specificDate;
    QLabel* m_dateFromLabel;
    QLabel* m_dateToLabel;
    QDateEdit* m_dateFrom;
    QDateEdit* m_dateTo;
    QRadioButton* m_allTasks;
    QRadioButton* m_activeTasks;
    QRadioButton* m_expiredTasks;
    QuietLine* m_quietLine;
};
