#pragma once

#include "app/TaskChoices.h"
#include "system/Moment.h"
#include "widgets/FormServices.h"

#include <QKeySequence>
#include <QObject>
#include <functional>

class GridView;
class MomentMenu;
class QAction;
class QMenu;
class TaskListModel;

/// What can be done with the selected tasks of the list: its context menu, which is made when it is first
/// asked for, and the keys of the page. Each change is one operation and one step of the undo history.
class TaskActions final : public QObject
{
    Q_OBJECT

public:
    /// `grid` shows `model`; `page` gets the keys and owns this object. All outlive it.
    TaskActions(const FormServices& services, GridView& grid, const TaskListModel& model, QWidget& page);

    /// What can be done with the tasks that are selected now.
    TaskChoices choices() const;
    void remove(const TaskChoices& tasks);
    /// Deletes this time of those that repeat, and the others.
    void moveOn(const TaskChoices& tasks);

signals:
    void editRequested();
    void deleteRequested();
    void undoRequested();
    void redoRequested();
    /// Tasks are no longer what the list shows; `ids` are to be selected where they are still listed.
    void tasksChanged(const QList<qint32>& ids);

private:
    using Change = std::function<void(const DatabaseEngine& engine, const QList<qint32>& ids)>;

    QAction* make(const char* name, const QString& caption, const QKeySequence& keys = {});
    /// An entry that is worked by its key, too, wherever on the page the focus is.
    QAction* makeWithKey(const char* name, const QString& caption, const QKeySequence& keys);
    void makeMenu();
    QMenu* addChoices(const char* name, const QString& title);
    void fillChoices(const TaskChoices& tasks);
    void showMenu(const QPoint& place);

    void change(const QList<qint32>& ids, const QString& done, const Change& change);
    void complete(const TaskChoices& tasks);
    void mnuListComplete_Click();
    void mnuListPostpone_Click(Moment moment, int index);
    void mnuListStatus_Click(const QAction* choice);
    void mnuListPeriority_Click(const QAction* choice);
    void mnuListCategory_Click(const QAction* choice);
    void mnuListDuplicate_Click();

    const FormServices& m_services;
    GridView& m_grid;
    const TaskListModel& m_model;
    QWidget& m_page;
    QAction* m_edit;
    QAction* m_complete;
    QAction* m_undo;
    QAction* m_redo;
    // What only the menu has:
    QMenu* m_menu = nullptr;
    QAction* m_duplicate = nullptr;
    QAction* m_copy = nullptr;
    QAction* m_delete = nullptr;
    MomentMenu* m_postpone = nullptr;
    QMenu* m_status = nullptr;
    QMenu* m_periority = nullptr;
    QMenu* m_category = nullptr;
};
