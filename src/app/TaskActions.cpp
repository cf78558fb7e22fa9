#include "app/TaskActions.h"

#include "app/TaskListModel.h"
#include "data/ClsCategory.h"
#include "data/TaskChanges.h"
#include "data/TaskCodes.h"
#include "data/UndoHistory.h"
#include "reminders/UsualMoments.h"
#include "system/ErrorReport.h"
#include "widgets/ChangeTexts.h"
#include "widgets/GridView.h"
#include "widgets/MenuPlace.h"
#include "widgets/MomentMenu.h"
#include "widgets/NamedControls.h"
#include "widgets/PlainText.h"

#include <QAction>
#include <QMenu>

namespace
{

constexpr int LongestCaption = 60;

/// What a user wrote, as the caption of an entry.
QString asCaption(const QString& text)
{
    return withoutMiddle(text.simplified(), LongestCaption).replace(u'&', QLatin1String("&&"));
}

} // namespace

TaskActions::TaskActions(
    const FormServices& services, GridView& grid, const TaskListModel& model, QWidget& page)
    : QObject(&page), m_services(services), m_grid(grid), m_model(model), m_page(page),
      m_edit(makeWithKey("mnuListEdit", tr("&Edit"), Qt::Key_F2)),
      m_complete(makeWithKey("mnuListComplete", tr("&Complete"), Qt::CTRL | Qt::Key_D)),
      m_undo(makeWithKey("mnuListUndo", tr("&Undo"), Qt::CTRL | Qt::Key_Z)),
      m_redo(makeWithKey("mnuListRedo", tr("&Redo"), Qt::CTRL | Qt::SHIFT | Qt::Key_Z))
{
    ErrorReport& errors = services.errors;
    connect(m_edit, &QAction::triggered, this, &TaskActions::editRequested);
    connectGuarded(m_complete, &QAction::triggered, this, &TaskActions::mnuListComplete_Click, errors);
    connect(m_undo, &QAction::triggered, this, &TaskActions::undoRequested);
    connect(m_redo, &QAction::triggered, this, &TaskActions::redoRequested);
    connectGuarded(&grid, &GridView::menuRequested, this, &TaskActions::showMenu, errors);
}

QAction* TaskActions::make(const char* name, const QString& caption, const QKeySequence& keys)
{
    QAction* action = named(new QAction(caption, this), name);
    action->setShortcut(keys);
    // A held key changes the tasks once.
    action->setAutoRepeat(false);
    action->setShortcutVisibleInContextMenu(true);
    return action;
}

QAction* TaskActions::makeWithKey(const char* name, const QString& caption, const QKeySequence& keys)
{
    QAction* action = make(name, caption, keys);
    m_page.addAction(action);
    return action;
}

void TaskActions::makeMenu()
{
    ErrorReport& errors = m_services.errors;
    m_menu = named(new QMenu(&m_grid), "mnuList");
    m_postpone = new MomentMenu(m_menu);
    addUsualMoments(*m_postpone, m_services.clock);
    m_postpone->setTitle(tr("&Postpone"));
    m_postpone->menuAction()->setObjectName(QStringLiteral("mnuListPostpone"));
    m_duplicate = make("mnuListDuplicate", tr("Dup&licate"));
    // The list itself acts on the keys of these two.
    m_copy = make("mnuListCopy", tr("C&opy"), QKeySequence::Copy);
    m_delete = make("mnuListDelete", tr("&Delete"), Qt::Key_Delete);

    m_menu->addAction(m_edit);
    m_menu->addAction(m_complete);
    m_menu->addMenu(m_postpone);
    m_menu->addSeparator();
    m_status = addChoices("mnuListStatus", tr("&Status"));
    m_periority = addChoices("mnuListPeriority", tr("Pr&iority"));
    m_category = addChoices("mnuListCategory", tr("Categor&y"));
    m_menu->addSeparator();
    m_menu->addAction(m_duplicate);
    m_menu->addAction(m_copy);
    m_menu->addAction(m_delete);
    m_menu->addSeparator();
    m_menu->addAction(m_undo);
    m_menu->addAction(m_redo);

    connectGuarded(m_postpone, &MomentMenu::momentChosen, this, &TaskActions::mnuListPostpone_Click, errors);
    connectGuarded(m_status, &QMenu::triggered, this, &TaskActions::mnuListStatus_Click, errors);
    connectGuarded(m_periority, &QMenu::triggered, this, &TaskActions::mnuListPeriority_Click, errors);
    connectGuarded(m_category, &QMenu::triggered, this, &TaskActions::mnuListCategory_Click, errors);
    connectGuarded(m_duplicate, &QAction::triggered, this, &TaskActions::mnuListDuplicate_Click, errors);
    connect(m_copy, &QAction::triggered, &m_grid, &GridView::copySelectedRows);
    connect(m_delete, &QAction::triggered, this, &TaskActions::deleteRequested);
    // A disabled action does not act on its key, and what the key is for may have changed by then.
    connect(m_menu, &QMenu::aboutToHide, this, [this] {
        for (QAction* action : {m_edit, m_complete, m_undo, m_redo}) {
            action->setEnabled(true);
        }
    });
}

QMenu* TaskActions::addChoices(const char* name, const QString& title)
{
    QMenu* menu = m_menu->addMenu(title);
    menu->menuAction()->setObjectName(QLatin1String(name));
    return menu;
}

void TaskActions::fillChoices(const TaskChoices& tasks)
{
    const std::vector<ClsCategory> categories = ClsCategory(m_services.engine).GetAllCategories();
    const auto add = [](QMenu& menu, const QString& caption, qint32 value, std::optional<qint32> present) {
        QAction* choice = menu.addAction(caption);
        choice->setData(value);
        choice->setCheckable(true);
        choice->setChecked(present == value);
    };
    for (QMenu* menu : {m_status, m_periority, m_category}) {
        menu->clear();
    }
    for (const qint32 status : {TaskStatus::NotStarted, TaskStatus::InProgress, TaskStatus::Completed,
             TaskStatus::Waiting, TaskStatus::Deferred}) {
        add(*m_status, TaskChoices::statusCaption(status), status, tasks.commonStatus());
    }
    for (const qint32 periority : {TaskPeriority::Normal, TaskPeriority::Low, TaskPeriority::High}) {
        add(*m_periority, TaskChoices::periorityCaption(periority), periority, tasks.commonPeriority());
    }
    for (const ClsCategory& category : categories) {
        add(*m_category, asCaption(category.CatName()), category.Id(), tasks.commonCategory());
    }
}

void TaskActions::showMenu(const QPoint& place)
{
    if (m_menu == nullptr) {
        makeMenu();
    }
    const TaskChoices tasks = choices();
    fillChoices(tasks);
    for (QAction* entry : m_menu->actions()) {
        entry->setEnabled(!tasks.isEmpty());
    }
    m_complete->setText(tasks.completeCaption());
    m_postpone->menuAction()->setEnabled(!tasks.idsWithReminder().isEmpty());
    const UndoHistory& history = m_services.undo;
    m_undo->setEnabled(history.canUndo());
    m_undo->setText(history.canUndo() ? tr("&Undo: %1").arg(asCaption(history.undoText())) : tr("&Undo"));
    m_redo->setEnabled(true);
    m_redo->setVisible(history.canRedo());
    m_redo->setText(history.canRedo() ? tr("&Redo: %1").arg(asCaption(history.redoText())) : tr("&Redo"));
    popUpAt(*m_menu, place);
}

TaskChoices TaskActions::choices() const
{
    QList<TaskState> selected;
    for (const int row : m_grid.selectedRows()) {
        const ClsTask& task = m_model.taskAt(row);
        selected.append({task.Id(), task.status(), task.Periority(), task.CategoryId(), task.ReminderOn(),
            m_model.repeats(row)});
    }
    return TaskChoices(selected);
}

void TaskActions::change(const QList<qint32>& ids, const QString& done, const Change& change)
{
    if (ids.isEmpty()) {
        return;
    }
    m_services.undo.run([&](const DatabaseEngine& engine) {
        change(engine, ids);
        return done;
    });
    emit tasksChanged(ids);
}

void TaskActions::remove(const TaskChoices& tasks)
{
    change(tasks.ids(), ChangeTexts::deleted(tasks.count()), TaskChanges::remove);
}

void TaskActions::moveOn(const TaskChoices& tasks)
{
    change(tasks.ids(), ChangeTexts::movedOn(tasks.count()), TaskChanges::moveOn);
}

void TaskActions::mnuListComplete_Click()
{
    const TaskChoices tasks = choices();
    if (tasks.areAllCompleted()) {
        change(tasks.ids(), ChangeTexts::setBack(tasks.count()), [](const auto& engine, const auto& ids) {
            TaskChanges::setStatus(engine, ids, TaskStatus::NotStarted);
        });
    } else {
        complete(tasks);
    }
}

void TaskActions::complete(const TaskChoices& tasks)
{
    change(tasks.ids(), ChangeTexts::completed(tasks.count()), TaskChanges::complete);
}

void TaskActions::mnuListPostpone_Click(Moment moment, int /*index*/)
{
    const QList<qint32> ids = choices().idsWithReminder();
    change(ids, ChangeTexts::postponed(static_cast<int>(ids.size())),
        [moment](const auto& engine, const auto& tasks) { TaskChanges::remindAt(engine, tasks, moment); });
}

void TaskActions::mnuListStatus_Click(const QAction* choice)
{
    const TaskChoices tasks = choices();
    const qint32 status = choice->data().toInt();
    if (status == TaskStatus::Completed) {
        complete(tasks);
        return;
    }
    change(tasks.ids(), ChangeTexts::statusChanged(tasks.count()),
        [status](const auto& engine, const auto& ids) { TaskChanges::setStatus(engine, ids, status); });
}

void TaskActions::mnuListPeriority_Click(const QAction* choice)
{
    const TaskChoices tasks = choices();
    const qint32 periority = choice->data().toInt();
    change(tasks.ids(), ChangeTexts::periorityChanged(tasks.count()),
        [periority](
            const auto& engine, const auto& ids) { TaskChanges::setPeriority(engine, ids, periority); });
}

void TaskActions::mnuListCategory_Click(const QAction* choice)
{
    const TaskChoices tasks = choices();
    const auto category = static_cast<qint16>(choice->data().toInt());
    change(tasks.ids(), ChangeTexts::categoryChanged(tasks.count()),
        [category](const auto& engine, const auto& ids) { TaskChanges::setCategory(engine, ids, category); });
}

void TaskActions::mnuListDuplicate_Click()
{
    const TaskChoices tasks = choices();
    if (tasks.isEmpty()) {
        return;
    }
    QList<qint32> copies;
    m_services.undo.run([&](const DatabaseEngine& engine) {
        copies = TaskChanges::duplicate(engine, tasks.ids());
        return ChangeTexts::duplicated(tasks.count());
    });
    emit tasksChanged(copies);
}
