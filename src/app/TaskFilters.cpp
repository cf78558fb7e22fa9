#include "app/TaskFilters.h"

#include "app/FilterFold.h"
#include "widgets/ComboBox.h"
#include "widgets/Combos.h"
#include "widgets/NamedControls.h"
#include "widgets/Pickers.h"
#include "widgets/PlainText.h"
#include "widgets/clsGuiLoader.h"

#include <QBoxLayout>
#include <QDateEdit>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QRadioButton>
#include <QSignalBlocker>

TaskFilters::TaskFilters(const Clock& clock, QWidget* parent)
    : QWidget(parent), m_categories(named(new ComboBox, "cmbCategories")),
      m_status(named(new ComboBox, "cmbStatus")), m_sort(named(new ComboBox, "cmbSort")),
      m_allDate(named(new QRadioButton(tr("A&ll")), "opnAllDate")),
      m_specificDate(named(new QRadioButton(tr("Spec&ific")), "opnSpecificDate")),
      m_dateFrom(named(new QDateEdit, "dtpDueDateFrom")), m_dateTo(named(new QDateEdit, "dtpDueDateTo")),
      m_allTasks(named(new QRadioButton(tr("All tas&ks")), "opnAllTasks")),
      m_activeTasks(named(new QRadioButton(tr("Acti&ve tasks only")), "opnActiveTasks")),
      m_expiredTasks(named(new QRadioButton(tr("E&xpired tasks only")), "opnExpiredTasks"))
{
    m_dateFromLabel = named(labelFor(m_dateFrom, tr("&From")), "lblDateFrom");
    m_dateToLabel = named(labelFor(m_dateTo, tr("&To")), "lblDateTo");

    m_fold = new FilterFold;
    m_fold->addFrame(makeFilterFrame(), 3);
    m_fold->addFrame(makeDueDateFrame(clock), 2);
    m_fold->addFrame(makeTaskTypeFrame(), 2);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins({});
    layout->addWidget(m_fold);

    for (const QComboBox* combo : {m_categories, m_status}) {
        connect(combo, &QComboBox::activated, this, &TaskFilters::list_Click);
    }
    connect(m_sort, &QComboBox::activated, this, &TaskFilters::cmbSort_Click);
    for (const QDateEdit* picker : {m_dateFrom, m_dateTo}) {
        connect(picker, &QDateEdit::dateChanged, this, &TaskFilters::dates_Changed);
    }
    for (const QRadioButton* option : {m_allTasks, m_activeTasks, m_expiredTasks}) {
        connect(option, &QRadioButton::toggled, this, &TaskFilters::opnTaskType_Click);
    }
    connect(m_allDate, &QRadioButton::toggled, this, &TaskFilters::opnAllDate_Click);
    connect(m_specificDate, &QRadioButton::toggled, this, &TaskFilters::opnSpecificDate_Click);
}

QWidget* TaskFilters::makeFilterFrame()
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
    const QString turns = tr("The same order chosen again is turned round");
    m_sort->setToolTip(turns);
    m_sort->setAccessibleDescription(turns);
    return frame;
}

QWidget* TaskFilters::makeDueDateFrame(const Clock& clock)
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
    setUpDatePicker(*m_dateFrom, clock);
    setUpDatePicker(*m_dateTo, clock);
    m_allDate->setChecked(true);
    setDatesEnabled(false);
    return frame;
}

QWidget* TaskFilters::makeTaskTypeFrame()
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

void TaskFilters::fillLists(const DatabaseEngine& engine)
{
    const clsGuiLoader loader(engine);
    loader.LoadCategoriesCombo(*m_categories);
    loader.LoadStatusCombo(*m_status);
    loader.LoadSortByCombo(*m_sort);
    m_isDescending = false;
    m_sortedBy = selectedNumber(*m_sort, TaskSort::None);
    sayFilters();
}

void TaskFilters::reloadCategories(const DatabaseEngine& engine)
{
    clsGuiLoader(engine).reloadCategoriesCombo(*m_categories);
    sayFilters();
}

void TaskFilters::startWith(const QDate& today, bool todayOnly)
{
    for (QDateEdit* picker : {m_dateFrom, m_dateTo}) {
        const QSignalBlocker blocker(picker);
        picker->setDate(today);
    }
    {
        // The caller reads the filter anyway, also when the option was selected before.
        const QSignalBlocker allBlocker(m_allDate);
        const QSignalBlocker specificBlocker(m_specificDate);
        (todayOnly ? m_specificDate : m_allDate)->setChecked(true);
    }
    setDatesEnabled(todayOnly);
    sayFilters();
    m_followedDay = todayOnly ? std::optional(today) : std::nullopt;
}

bool TaskFilters::moveOnTo(const QDate& today)
{
    if (!m_followedDay || *m_followedDay == today) {
        return false;
    }
    startWith(today, true);
    return true;
}

void TaskFilters::showAll()
{
    {
        const QSignalBlocker dateBlocker(m_allDate);
        const QSignalBlocker specificBlocker(m_specificDate);
        const QSignalBlocker allBlocker(m_allTasks);
        const QSignalBlocker activeBlocker(m_activeTasks);
        const QSignalBlocker expiredBlocker(m_expiredTasks);
        m_categories->setCurrentIndex(m_categories->findData(CategoryFilter::All));
        m_status->setCurrentIndex(m_status->findData(TaskStatus::All));
        m_allDate->setChecked(true);
        m_allTasks->setChecked(true);
    }
    setDatesEnabled(false);
    dates_Changed();
}

TaskFilter TaskFilters::filter() const
{
    TaskFilter filter;
    filter.category = static_cast<qint16>(selectedNumber(*m_categories, CategoryFilter::All));
    filter.status = selectedNumber(*m_status, TaskStatus::All);
    filter.sortBy = selectedNumber(*m_sort, TaskSort::None);
    filter.isDescending = m_isDescending;
    filter.isDateRange = m_specificDate->isChecked();
    filter.fromDate = toMoment(m_dateFrom->date());
    filter.toDate = toMoment(m_dateTo->date());
    filter.taskType = m_activeTasks->isChecked() ? TaskType::Active
        : m_allTasks->isChecked()                ? TaskType::All
                                                 : TaskType::Expired;
    return filter;
}

int TaskFilters::selectedCategoryIndex() const
{
    return m_categories->currentIndex();
}

bool TaskFilters::hasCategories() const
{
    return m_categories->count() > 1;
}

QString TaskFilters::categoryName(qint16 id) const
{
    const int index = m_categories->findData(static_cast<qint32>(id));
    return index < 0 ? QString() : m_categories->itemText(index);
}

void TaskFilters::sortBy(qint32 number)
{
    selectNumber(*m_sort, number);
    noteSort();
    tell();
}

void TaskFilters::noteSort()
{
    const qint32 chosen = selectedNumber(*m_sort, TaskSort::None);
    m_isDescending = chosen == m_sortedBy && chosen != TaskSort::None && !m_isDescending;
    m_sortedBy = chosen;
}

void TaskFilters::list_Click()
{
    if (window()->isVisible()) {
        tell();
    }
}

void TaskFilters::cmbSort_Click()
{
    noteSort();
    list_Click();
}

void TaskFilters::tell()
{
    sayFilters();
    emit changed();
}

void TaskFilters::sayFilters()
{
    m_fold->setLine(activeFilters());
}

QString TaskFilters::activeFilters() const
{
    // A name may be long; nobody reads more of it in this line.
    constexpr qsizetype MostCharacters = 60;
    QStringList active;
    if (selectedNumber(*m_categories, CategoryFilter::All) != CategoryFilter::All) {
        const QString name = withoutMiddle(m_categories->currentText(), MostCharacters);
        active.append(tr("Category: %1").arg(inOwnDirection(name)));
    }
    if (selectedNumber(*m_status, TaskStatus::All) != TaskStatus::All) {
        active.append(tr("Status: %1").arg(m_status->currentText()));
    }
    if (m_specificDate->isChecked()) {
        active.append(tr("Due from %1 to %2")
                          .arg(inOwnDirection(m_dateFrom->text()), inOwnDirection(m_dateTo->text())));
    }
    if (m_activeTasks->isChecked()) {
        active.append(tr("Active tasks only"));
    } else if (m_expiredTasks->isChecked()) {
        active.append(tr("Expired tasks only"));
    }
    return active.isEmpty() ? tr("No filter leaves a task out") : active.join(QStringLiteral(" \u00b7 "));
}

void TaskFilters::opnAllDate_Click(bool selected)
{
    if (selected) {
        setDatesEnabled(false);
        dates_Changed();
    }
}

void TaskFilters::opnSpecificDate_Click(bool selected)
{
    if (selected) {
        setDatesEnabled(true);
        dates_Changed();
    }
}

void TaskFilters::dates_Changed()
{
    m_followedDay.reset();
    tell();
}

void TaskFilters::opnTaskType_Click(bool selected)
{
    if (selected) {
        tell();
    }
}

void TaskFilters::setDatesEnabled(bool enabled)
{
    m_dateFromLabel->setEnabled(enabled);
    m_dateToLabel->setEnabled(enabled);
    m_dateFrom->setEnabled(enabled);
    m_dateTo->setEnabled(enabled);
}
