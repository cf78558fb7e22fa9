#pragma once

#include "app/TaskListModel.h"
#include "data/TaskFilter.h"
#include "widgets/FormServices.h"

#include <QWidget>
#include <functional>

class EmptyListNote;
class FilterFold;
class GridView;
class QBoxLayout;
class QPushButton;
class QuietLine;
class TaskActions;
class TaskChoices;
class TaskFilters;
class UndoBar;

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
    /// To be called now and then: shows what has become late, and on another day the tasks of that day if
    /// the page was started with today's, once no question or menu is open. Reads the list that could not be
    /// read. Never throws: what fails is tried again by the next call.
    void followTime();
    /// Whether a question or menu is open: it is about the rows that were selected when it came up.
    static bool isUserChoosing();
    /// Rebuilds the list from the filters; the current row stays on its task. Throws DatabaseError, and
    /// then the list is as it was.
    void LoadTasks();
    /// The same for what the user has not asked for: the selection and the place in the list stay, too.
    void followChanges();
    /// To be called when the data file has been replaced: empties the list if it could not be read since,
    /// because its ids mean other tasks. The next `followTime` reads it.
    void forgetUnread();

    /// Makes the task's row the current one and scrolls to it. False when the list does not show the task.
    bool goToTask(qint32 id);
    /// Folds the texts of the list for the first key of a search, in parts, so that keys come between.
    void prepareFind();
    /// Gives the memory of the search back after a while, if nothing is looked for then.
    void restSearchLater();
    /// Shows those of the tasks that hold all words of `text` in name or description; all for an empty text.
    /// The selected rows and the current one stay so while they are shown.
    void find(const QString& text);
    /// Gives the focus to the list and selects its first row if none is selected.
    void enterList();
    /// Whether the filters show the task, but it does not hold what is looked for.
    bool isHiddenByFind(qint32 id) const;
    void setGridLines(bool shown);
    /// Gives the focus to the list.
    void focusList();
    /// The bar that takes changes back, under the list; made at its first use.
    UndoBar& undoBar();
    GridView* grid() const { return m_grid; }
    FilterFold& fold() const;
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
    /// Tasks were changed from the list, which shows it already.
    void tasksChanged();
    void helpRequested();
    /// "Print" was pressed; the report shows what the filters select.
    void printRequested(const TaskFilter& filter, const ShownTasks& shown);
    /// Escape was pressed in the list while something is looked for.
    void findEnded();

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    void btnTaskAdd_Click();
    void btnTaskEdit_Click();
    void btnTaskDelete_Click();
    void deleteRepeating(const TaskChoices& tasks);
    void btnTaskPrint_Click();
    void filters_Changed();
    void showChanged(const QList<qint32>& ids);

    QBoxLayout* makeButtonRow();
    /// Says how many tasks were found, or why the list is empty.
    void tellWhatIsShown();
    void prepareNextPart();

    const FormServices& m_services;
    std::function<TaskColumns()> m_shownColumns;
    TaskListModel* m_model;
    TaskFilters* m_filters;
    GridView* m_grid;
    QuietLine* m_quietLine;
    TaskActions* m_actions;
    UndoBar* m_undoBar = nullptr;
    /// The list does not show yet what the filters say.
    bool m_isBehind = false;
    EmptyListNote* m_emptyNote;
    QString m_sought;
    QTimer* m_searchRest = nullptr; ///< made when it is needed
};
