#include "app/TasksPage.h"

#include "system/Clock.h"
#include "system/ErrorReport.h"
#include "widgets/ComboBox.h"
#include "widgets/Combos.h"
#include "widgets/GridView.h"
#include "widgets/MessageBoxes.h"
#include "widgets/NamedControls.h"
#include "widgets/Pickers.h"
#include "widgets/QuietLine.h"
#include "widgets/WindowPlacement.h"
#include "widgets/clsGuiLoader.h"

#include <QBoxLayout>
#include <QDateEdit>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QSignalBlocker>
#include <optional>

TasksPage::TasksPage(const FormServices& services, std::function<TaskColumns()> shownColumns, QWidget* parent)
    : QWidget(parent), m_services(services), m_shownColumns(std::move(shownColumns)),
      m_model(new TaskListModel(this)), m_grid(named(new GridView, "grdTasks")),
      m_categories(named(new ComboBox, "cmbCategories")), m_status(named(new ComboBox, "cmbStatus")),
      m_sort(named(new ComboBox, "cmbSort")), m_allDate(named(new QRadioButton(tr("A&ll")), "opnAllDate")),
      m_specificDate(named(new QRadioButton(tr("Spec&ific")), "opnSpecificDate")),
      m_dateFrom(named(new QDateEdit, "dtpDueDateFrom")), m_dateTo(named(new QDateEdit, "dtpDueDateTo")),
      m_allTasks(named(new QRadioButton(tr("All tas&ks")), "opnAllTasks")),
      m_activeTasks(named(new QRadioButton(tr("Acti&ve tasks only")), "opnActiveTasks")),
      m_expiredTasks(named(new QRadioButton(tr("E&xpired tasks only")), "opnExpiredTasks")),
      m_quietLine(new QuietLine(QStringLiteral("lblTasksNote"), this))
{
    m_grid->setAccessibleName(tr("Tasks"));
    m_grid->setGridModel(m_model);
    m_model->setCategoryNames([this](qint16 id) {
        const int index = m_categories->findData(static_cast<qint32>(id));
        return index < 0 ? QString() : m_categories->itemText(index);
    });
    m_dateFromLabel = named(labelFor(m_dateFrom, tr("&From")), "lblDateFrom");
    m_dateToLabel = named(labelFor(m_dateTo, tr("&To")), "lblDateTo");

    auto* filters = new QHBoxLayout;
    filters->addWidget(makeFilterFrame(), 3);
    filters->addWidget(makeDueDateFrame(), 2);
    filters->addWidget(makeTaskTypeFrame(), 2);
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(filters);
    layout->addWidget(m_grid, 1);
    layout->addLayout(makeButtonRow());
    layout->addWidget(m_quietLine);

    ErrorReport& errors = services.errors;
    for (const QComboBox* combo : {m_categories, m_status, m_sort}) {
        connectGuarded(combo, &QComboBox::activated, this, &TasksPage::filterList_Click, errors);
    }
    for (const QDateEdit* picker : {m_dateFrom, m_dateTo}) {
        connectGuarded(picker, &QDateEdit::dateChanged, this, &TasksPage::filter_Changed, errors);
    }
    for (const QRadioButton* option : {m_allTasks, m_activeTasks, m_expiredTasks}) {
        connectGuarded(option, &QRadioButton::toggled, this, &TasksPage::opnTaskType_Click, errors);
    }
    connectGuarded(m_allDate, &QRadioButton::toggled, this, &TasksPage::opnAllDate_Click, errors);
    connectGuarded(m_specificDate, &QRadioButton::toggled, this, &TasksPage::opnSpecificDate_Click, errors);
    connectGuarded(m_grid, &GridView::rowDoubleClicked, this, &TasksPage::btnTaskEdit_Click, errors);
    connectGuarded(m_grid, &GridView::enterPressed, this, &TasksPage::btnTaskEdit_Click, errors);
    connectGuarded(m_grid, &GridView::deletePressed, this, &TasksPage::btnTaskDelete_Click, errors);
}

QWidget* TasksPage::makeFilterFrame()
{
    auto* frame = named(new QGroupBox(tr("Show")), "framFilters");
    // A form layout would put a caption above the middle of its control.
    auto* layout = new QGridLayout(frame);
    const auto addRow = [&](int row, QLabel* label, QWidget* combo) {
        layout->addWidget(label, row, 0);
        layout->addWidget(combo, row, 1);
    };
    addRow(0, named(labelFor(m_categories, tr("Categor&y")), "SCLabel1"), m_categories);
    addRow(1, named(labelFor(m_status, tr("Stat&us")), "SCLabel2"), m_status);
    addRow(2, named(labelFor(m_sort, tr("S&ort by")), "SCLabel3"), m_sort);
    layout->setColumnStretch(1, 1);
    // A long category name must not widen the page; the program's own words must be seen whole.
    m_categories->keepNarrow(18);
    m_status->keepEntriesWhole();
    m_sort->keepEntriesWhole();
    return frame;
}

QWidget* TasksPage::makeDueDateFrame()
{
    auto* frame = named(new QGroupBox(tr("Due date")), "framDueDate");
    auto* layout = new QGridLayout(frame);
    auto* options = new QHBoxLayout;
    options->addWidget(m_allDate);
    options->addWidget(m_specificDate);
    options->addStretch();
    layout->addLayout(options, 0, 0, 1, 2);
    layout->addWidget(m_dateFromLabel, 1, 0);
    layout->addWidget(m_dateFrom, 1, 1);
    layout->addWidget(m_dateToLabel, 2, 0);
    layout->addWidget(m_dateTo, 2, 1);
    layout->setColumnStretch(1, 1);
    setUpDatePicker(*m_dateFrom, m_services.clock);
    setUpDatePicker(*m_dateTo, m_services.clock);
    m_allDate->setChecked(true);
    setDatesEnabled(false);
    return frame;
}

QWidget* TasksPage::makeTaskTypeFrame()
{
    auto* frame = named(new QGroupBox(tr("Kind")), "framTaskType");
    auto* layout = new QVBoxLayout(frame);
    for (QRadioButton* option : {m_allTasks, m_activeTasks, m_expiredTasks}) {
        layout->addWidget(option);
    }
    layout->addStretch();
    m_allTasks->setChecked(true);
    return frame;
}

QBoxLayout* TasksPage::makeButtonRow()
{
    auto* row = new QHBoxLayout;
    const auto add = [row](const char* name, const QString& caption) {
        auto* button = named(new QPushButton(caption), name);
        row->addWidget(button);
        return button;
    };
    ErrorReport& errors = m_services.errors;
    connectGuarded(
        add("btnTaskAdd", tr("&Add")), &QPushButton::clicked, this, &TasksPage::btnTaskAdd_Click, errors);
    connectGuarded(
        add("btnTaskEdit", tr("&Edit")), &QPushButton::clicked, this, &TasksPage::btnTaskEdit_Click, errors);
    connectGuarded(add("btnTaskDelete", tr("&Delete")), &QPushButton::clicked, this,
        &TasksPage::btnTaskDelete_Click, errors);
    row->addStretch();
    connectGuarded(add("btnTaskPrint", tr("&Print")), &QPushButton::clicked, this,
        &TasksPage::btnTaskPrint_Click, errors);
    connect(add("btnHelpTasks", tr("&Help")), &QPushButton::clicked, this, &TasksPage::helpRequested);
    return row;
}

void TasksPage::fillFilters()
{
    const clsGuiLoader loader(m_services.engine);
    loader.LoadCategoriesCombo(*m_categories);
    loader.LoadStatusCombo(*m_status);
    loader.LoadSortByCombo(*m_sort);
}

void TasksPage::reloadCategories()
{
    clsGuiLoader(m_services.engine).reloadCategoriesCombo(*m_categories);
}

void TasksPage::startWith(bool todayOnly)
{
    const QDate today = toQDate(m_services.clock.now());
    for (QDateEdit* picker : {m_dateFrom, m_dateTo}) {
        const QSignalBlocker blocker(picker);
        picker->setDate(today);
    }
    QRadioButton* option = todayOnly ? m_specificDate : m_allDate;
    {
        // So that the handler runs even if the option was selected before.
        const QSignalBlocker allBlocker(m_allDate);
        const QSignalBlocker specificBlocker(m_specificDate);
        option->setChecked(true);
    }
    setDatesEnabled(todayOnly);
    LoadTasks();
}

TaskFilter TasksPage::filter() const
{
    TaskFilter filter;
    filter.category = static_cast<qint16>(selectedNumber(*m_categories, CategoryFilter::All));
    filter.status = selectedNumber(*m_status, TaskStatus::All);
    filter.sortBy = selectedNumber(*m_sort, TaskSort::None);
    filter.isDateRange = m_specificDate->isChecked();
    filter.fromDate = toMoment(m_dateFrom->date());
    filter.toDate = toMoment(m_dateTo->date());
    filter.taskType = m_activeTasks->isChecked() ? TaskType::Active
        : m_allTasks->isChecked()                ? TaskType::All
                                                 : TaskType::Expired;
    return filter;
}

int TasksPage::selectedCategoryIndex() const
{
    return m_categories->currentIndex();
}

void TasksPage::LoadTasks()
{
    // Read before the list is cleared: a store that cannot be read must not look like an empty one.
    std::vector<ClsTask> tasks = filter().tasks(m_services.engine);
    const int row = m_grid->currentIndex().row();
    const std::optional<qint32> current = row < 0 ? std::nullopt : std::optional(m_model->idAt(row));
    m_model->setImageList(&m_services.imgLstCategories);
    m_model->setTasks(std::move(tasks), m_shownColumns());
    if (current) {
        goToTask(*current);
    }
    emit tasksLoaded();
}

bool TasksPage::goToTask(qint32 id)
{
    const int row = m_model->rowOf(id);
    if (row >= 0) {
        m_grid->goTo(row);
    }
    return row >= 0;
}

void TasksPage::setGridLines(bool shown)
{
    m_grid->setShowGrid(shown);
}

void TasksPage::focusGrid()
{
    activate(window());
    focusList();
}

void TasksPage::focusList()
{
    m_grid->setFocus(Qt::OtherFocusReason);
}

void TasksPage::filter_Changed()
{
    // The wheel and assistive technology get here without the key or click that clears the line.
    m_quietLine->hush();
    LoadTasks();
}

void TasksPage::filterList_Click()
{
    if (window()->isVisible()) {
        filter_Changed();
    }
}

void TasksPage::opnAllDate_Click(bool selected)
{
    if (selected) {
        setDatesEnabled(false);
        filter_Changed();
    }
}

void TasksPage::opnSpecificDate_Click(bool selected)
{
    if (selected) {
        setDatesEnabled(true);
        filter_Changed();
    }
}

void TasksPage::opnTaskType_Click(bool selected)
{
    if (selected) {
        filter_Changed();
    }
}

void TasksPage::setDatesEnabled(bool enabled)
{
    m_dateFromLabel->setEnabled(enabled);
    m_dateToLabel->setEnabled(enabled);
    m_dateFrom->setEnabled(enabled);
    m_dateTo->setEnabled(enabled);
}

void TasksPage::btnTaskAdd_Click()
{
    if (m_categories->count() == 1) {
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
    emit printRequested(filter());
}

void TasksPage::btnTaskDelete_Click()
{
    if (m_grid->selectedRow() < 0) {
        return;
    }
    const qint32 id = m_model->idAt(m_grid->selectedRow());
    if (!m_services.messages.ask(this, tr("Are you sure you want to delete this task?"))) {
        return;
    }
    ClsTask(m_services.engine).DeleteById(narrowId(id, QT_TRANSLATE_NOOP("OverflowError", "task id")));
    // The list may have been rebuilt while the question was open.
    if (const int row = m_model->rowOf(id); row >= 0) {
        m_model->removeTask(row);
        m_grid->selectOnly(qMin(row, m_model->rowCount() - 1));
    }
}
