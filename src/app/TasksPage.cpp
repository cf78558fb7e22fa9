#include "app/TasksPage.h"

#include "app/EmptyListNote.h"
#include "app/TaskActions.h"
#include "app/TaskFilters.h"
#include "app/UndoBar.h"
#include "data/TaskChanges.h"
#include "data/TaskRepeats.h"
#include "data/UndoHistory.h"
#include "system/Clock.h"
#include "system/ErrorReport.h"
#include "widgets/ChangeTexts.h"
#include "widgets/GridView.h"
#include "widgets/MessageBoxes.h"
#include "widgets/NamedControls.h"
#include "widgets/QuietLine.h"

#include <QApplication>
#include <QBoxLayout>
#include <QKeyEvent>
#include <QPushButton>
#include <QScrollBar>
#include <QShortcut>
#include <QTimer>
#include <chrono>
#include <optional>

TasksPage::TasksPage(const FormServices& services, std::function<TaskColumns()> shownColumns, QWidget* parent)
    : QWidget(parent), m_services(services), m_shownColumns(std::move(shownColumns)),
      m_model(new TaskListModel(services.clock, this)), m_filters(new TaskFilters(services.clock)),
      m_grid(named(new GridView, "grdTasks")),
      m_quietLine(new QuietLine(QStringLiteral("lblTasksNote"), this)),
      m_actions(new TaskActions(services, *m_grid, *m_model, *this)),
      m_emptyNote(new EmptyListNote(*m_grid, *this))
{
    m_grid->setAccessibleName(tr("Tasks"));
    m_grid->setGridModel(m_model);
    m_model->setCategoryNames([this](qint16 id) { return m_filters->categoryName(id); });

    auto* layout = new QVBoxLayout(this);
    layout->addWidget(m_filters);
    layout->addWidget(m_grid, 1);
    layout->addLayout(makeButtonRow());
    layout->addWidget(m_quietLine);

    connect(&services.undo, &UndoHistory::stepsChanged, this, [this] { undoBar(); });
    ErrorReport& errors = services.errors;
    connectGuarded(m_filters, &TaskFilters::changed, this, &TasksPage::filters_Changed, errors);
    // What it changes is told by the filters, guarded.
    connect(m_grid, &GridView::sortRequested, this,
        [this](int field) { m_filters->sortBy(TaskListModel::sortOf(field)); });
    connectGuarded(m_emptyNote, &EmptyListNote::showAllRequested, m_filters, &TaskFilters::showAll, errors);
    for (const auto change : {&QAbstractItemModel::rowsInserted, &QAbstractItemModel::rowsRemoved}) {
        connect(m_model, change, this, &TasksPage::tellWhatIsShown);
    }
    connect(m_model, &QAbstractItemModel::modelReset, this, &TasksPage::tellWhatIsShown);
    connectGuarded(m_grid, &GridView::rowDoubleClicked, this, &TasksPage::btnTaskEdit_Click, errors);
    connectGuarded(m_grid, &GridView::enterPressed, this, &TasksPage::btnTaskEdit_Click, errors);
    connectGuarded(m_grid, &GridView::deletePressed, this, &TasksPage::btnTaskDelete_Click, errors);
    connectGuarded(m_actions, &TaskActions::editRequested, this, &TasksPage::btnTaskEdit_Click, errors);
    connectGuarded(m_actions, &TaskActions::deleteRequested, this, &TasksPage::btnTaskDelete_Click, errors);
    connectGuarded(m_actions, &TaskActions::tasksChanged, this, &TasksPage::showChanged, errors);
    connect(m_actions, &TaskActions::undoRequested, this, [this] { undoBar().undo(); });
    connect(m_actions, &TaskActions::redoRequested, this, [this] { undoBar().redo(); });
}

QBoxLayout* TasksPage::makeButtonRow()
{
    auto* row = new QHBoxLayout;
    const auto add = [row](const char* name, const QString& caption, const QKeySequence& keys = {}) {
        auto* button = named(new QPushButton(caption), name);
        button->setToolTip(keys.toString(QKeySequence::NativeText));
        row->addWidget(button);
        return button;
    };
    // The shortcut of a button would take the place of its mnemonic.
    const auto addWithKeys = [&add](const char* name, const QString& caption, const QKeySequence& keys) {
        auto* button = add(name, caption, keys);
        connect(new QShortcut(keys, button), &QShortcut::activated, button, &QPushButton::click);
        return button;
    };
    ErrorReport& errors = m_services.errors;
    connectGuarded(addWithKeys("btnTaskAdd", tr("&Add"), QKeySequence::New), &QPushButton::clicked, this,
        &TasksPage::btnTaskAdd_Click, errors);
    // The keys of these two are those of TaskActions and of the list.
    connectGuarded(add("btnTaskEdit", tr("&Edit"), Qt::Key_F2), &QPushButton::clicked, this,
        &TasksPage::btnTaskEdit_Click, errors);
    connectGuarded(add("btnTaskDelete", tr("&Delete"), Qt::Key_Delete), &QPushButton::clicked, this,
        &TasksPage::btnTaskDelete_Click, errors);
    row->addStretch();
    connectGuarded(addWithKeys("btnTaskPrint", tr("&Print"), QKeySequence::Print), &QPushButton::clicked,
        this, &TasksPage::btnTaskPrint_Click, errors);
    connect(add("btnHelpTasks", tr("&Help")), &QPushButton::clicked, this, &TasksPage::helpRequested);
    return row;
}

void TasksPage::fillFilters()
{
    m_filters->fillLists(m_services.engine);
}

void TasksPage::reloadCategories()
{
    m_filters->reloadCategories(m_services.engine);
}

void TasksPage::startWith(bool todayOnly)
{
    m_filters->startWith(toQDate(m_services.clock.now()), todayOnly);
    LoadTasks();
}

void TasksPage::followTime()
{
    const bool isBehind =
        !isUserChoosing() && (m_filters->moveOnTo(toQDate(m_services.clock.now())) || m_isBehind);
    if (isBehind) {
        try {
            LoadTasks();
        } catch (const RuntimeError&) {
            return;
        }
    }
    m_model->followTime();
}

bool TasksPage::isUserChoosing()
{
    return QApplication::activeModalWidget() != nullptr || QApplication::activePopupWidget() != nullptr;
}

FilterFold& TasksPage::fold() const
{
    return m_filters->fold();
}

TaskFilter TasksPage::filter() const
{
    return m_filters->filter();
}

int TasksPage::selectedCategoryIndex() const
{
    return m_filters->selectedCategoryIndex();
}

void TasksPage::LoadTasks()
{
    m_isBehind = true;
    // Read before the list is cleared: a store that cannot be read must not look like an empty one.
    const TaskFilter shown = filter();
    std::vector<ClsTask> tasks = shown.tasks(m_services.engine);
    std::map<qint32, Repeat> repeats = TaskRepeats::all(m_services.engine);
    const int row = m_grid->currentIndex().row();
    const std::optional<qint32> current = row < 0 ? std::nullopt : std::optional(m_model->idAt(row));
    m_model->setImageList(&m_services.imgLstCategories);
    m_model->setTasks(std::move(tasks), m_shownColumns(), std::move(repeats));
    m_grid->showSort(
        TaskListModel::fieldOf(shown.sortBy), shown.isDescending ? Qt::DescendingOrder : Qt::AscendingOrder);
    m_isBehind = false;
    if (current) {
        goToTask(*current);
    }
    emit tasksLoaded();
}

void TasksPage::followChanges()
{
    QList<qint32> selected;
    for (const int row : m_grid->selectedRows()) {
        selected.append(m_model->idAt(row));
    }
    QScrollBar& bar = *m_grid->verticalScrollBar();
    const int place = bar.value();
    LoadTasks();
    const int current = m_grid->currentIndex().row();
    m_grid->selectRows(m_model->rowsOf(selected));
    if (current >= 0) {
        m_grid->goTo(current);
    }
    bar.setValue(place);
}

void TasksPage::forgetUnread()
{
    if (m_isBehind) {
        m_model->setTasks({}, m_shownColumns(), {});
    }
}

void TasksPage::showChanged(const QList<qint32>& ids)
{
    const QList<int> before = m_grid->selectedRows();
    LoadTasks();
    const QList<int> rows = m_model->rowsOf(ids);
    if (rows.isEmpty() && !before.isEmpty()) {
        m_grid->selectOnly(qMin(before.first(), m_model->rowCount() - 1));
    } else {
        m_grid->selectRows(rows);
    }
    emit tasksChanged();
}

bool TasksPage::goToTask(qint32 id)
{
    const int row = m_model->rowOf(id);
    if (row >= 0) {
        m_grid->goTo(row);
    }
    return row >= 0;
}

void TasksPage::find(const QString& text)
{
    m_sought = text.simplified();
    if (m_model->lookFor(text)) {
        // Otherwise Qt would select another row instead of one that goes.
        m_grid->letGo([this](int row) { return !m_model->isFound(row); });
        m_model->showFound();
    }
    tellWhatIsShown();
}

void TasksPage::prepareFind()
{
    if (m_searchRest != nullptr) {
        m_searchRest->stop();
    }
    prepareNextPart();
}

void TasksPage::prepareNextPart()
{
    if (m_model->prepareSearch()) {
        QTimer::singleShot(0, this, &TasksPage::prepareNextPart);
    }
}

void TasksPage::restSearchLater()
{
    constexpr std::chrono::minutes KeptForTheNextSearch(1);
    if (m_searchRest == nullptr) {
        m_searchRest = new QTimer(this);
        m_searchRest->setSingleShot(true);
        m_searchRest->setInterval(KeptForTheNextSearch);
        connect(m_searchRest, &QTimer::timeout, this, [this] {
            if (!m_model->isSearching()) {
                m_model->restSearch();
            }
        });
    }
    m_searchRest->start();
}

void TasksPage::tellWhatIsShown()
{
    const int all = m_model->taskCount();
    const int shown = m_model->rowCount();
    m_quietLine->setStanding(m_model->isSearching() ? foundText(shown, all) : QString());
    m_emptyNote->tell(emptyList(all, shown, filter().isNarrow()), m_sought);
}

void TasksPage::enterList()
{
    focusList();
    if (m_grid->selectedRow() < 0) {
        m_grid->selectOnly(0);
    }
}

bool TasksPage::isHiddenByFind(qint32 id) const
{
    return m_model->hasTask(id) && m_model->rowOf(id) < 0;
}

void TasksPage::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Escape && m_model->isSearching()) {
        emit findEnded();
    } else {
        QWidget::keyPressEvent(event);
    }
}

void TasksPage::setGridLines(bool shown)
{
    m_grid->setShowGrid(shown);
}

void TasksPage::focusList()
{
    m_grid->setFocus(Qt::OtherFocusReason);
}

UndoBar& TasksPage::undoBar()
{
    if (m_undoBar == nullptr) {
        m_undoBar = new UndoBar(m_services.undo, this);
        auto* column = static_cast<QBoxLayout*>(layout());
        column->insertWidget(column->indexOf(m_grid) + 1, m_undoBar);
        m_undoBar->followInTabOrder(m_grid);
        connect(m_undoBar, &UndoBar::focusLeft, this, &TasksPage::focusList);
    }
    return *m_undoBar;
}

void TasksPage::filters_Changed()
{
    // The wheel and assistive technology get here without the key or click that clears the line.
    m_quietLine->hush();
    LoadTasks();
}

void TasksPage::btnTaskAdd_Click()
{
    if (!m_filters->hasCategories()) {
        m_services.messages.tell(this, MessageBoxes::Icon::Information,
            tr("Please enter categories in the categories section first."));
        return;
    }
    emit addRequested(filter().category);
}

void TasksPage::btnTaskEdit_Click()
{
    const int row = m_grid->selectedRow();
    if (row >= 0) {
        emit editRequested(narrowId(m_model->idAt(row), QT_TRANSLATE_NOOP("OverflowError", "task id")));
    }
}

void TasksPage::btnTaskPrint_Click()
{
    emit printRequested(filter(), m_model->isSearching() ? ShownTasks(m_model->shownIds()) : std::nullopt);
}

void TasksPage::btnTaskDelete_Click()
{
    const TaskChoices tasks = m_actions->choices();
    if (tasks.isEmpty()) {
        return;
    }
    if (tasks.repeatingCount() > 0) {
        deleteRepeating(tasks);
        return;
    }
    if (!m_services.messages.ask(this, tasks.deleteQuestion())) {
        return;
    }
    if (tasks.count() > 1) {
        m_actions->remove(tasks);
        return;
    }
    const qint32 id = tasks.ids().first();
    const qint16 shortId = narrowId(id, QT_TRANSLATE_NOOP("OverflowError", "task id"));
    m_services.undo.run([&](const DatabaseEngine& engine) {
        ClsTask(engine).DeleteById(shortId);
        return ChangeTexts::deleted(1);
    });
    // The list may have been rebuilt while the question was open.
    if (const int row = m_model->rowOf(id); row >= 0) {
        m_model->removeTask(row);
        m_grid->selectOnly(qMin(row, m_model->rowCount() - 1));
    }
    emit tasksChanged();
}

void TasksPage::deleteRepeating(const TaskChoices& tasks)
{
    switch (m_services.messages.askWhichTimes(this, tasks.deleteQuestion())) {
    case MessageBoxes::Times::This:
        m_actions->moveOn(tasks);
        break;
    case MessageBoxes::Times::All:
        m_actions->remove(tasks);
        break;
    case MessageBoxes::Times::None:
        break;
    }
}
