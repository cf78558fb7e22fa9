#include "widgets/TaskGridModel.h"

#include "system/Clock.h"

#include <QSet>
#include <algorithm>

namespace
{

QFont boldFont()
{
    QFont font;
    font.setBold(true);
    return font;
}

QFont underlinedFont()
{
    QFont font;
    font.setUnderline(true);
    return font;
}

QFont struckOutFont()
{
    QFont font;
    font.setStrikeOut(true);
    return font;
}

} // namespace

TaskGridModel::TaskGridModel(const Clock& clock, int nameField, int dueDateField, QObject* parent)
    : GridModel(parent), m_clock(clock), m_nameField(nameField), m_dueDateField(dueDateField)
{
}

QList<int> TaskGridModel::rowsOf(const QList<qint32>& ids) const
{
    const QSet<qint32> wanted(ids.begin(), ids.end());
    QList<int> rows;
    for (int row = 0; row < rowCount(); ++row) {
        if (wanted.contains(idAt(row))) {
            rows.append(row);
        }
    }
    return rows;
}

void TaskGridModel::standNow()
{
    m_now = m_clock.now();
    m_nextChange.reset();
    for (int row = 0; row < rowCount(); ++row) {
        const std::optional<Moment> change = nextUrgencyChange(statusAt(row), dueAt(row), m_now);
        if (change && (!m_nextChange || *change < *m_nextChange)) {
            m_nextChange = change;
        }
    }
}

void TaskGridModel::followTime()
{
    const Moment now = m_clock.now();
    // A clock that was set back may make anything due again.
    if (now >= m_now && (!m_nextChange || now < *m_nextChange)) {
        return;
    }
    standNow();
    if (rowCount() > 0) {
        emit dataChanged(index(0, 0), index(rowCount() - 1, columnCount() - 1),
            {InkRole, Qt::FontRole, Qt::AccessibleDescriptionRole, Qt::ToolTipRole});
    }
}

TaskUrgency TaskGridModel::urgencyAt(int row) const
{
    return urgencyOf(statusAt(row), dueAt(row), m_now);
}

bool TaskGridModel::showsDueDate() const
{
    return std::any_of(columns().cbegin(), columns().cend(),
        [this](const GridColumn& column) { return column.field == m_dueDateField; });
}

QString TaskGridModel::urgencyWord(int row) const
{
    switch (urgencyAt(row)) {
    case TaskUrgency::Overdue:
        return tr("Overdue");
    case TaskUrgency::DueToday:
        return tr("Due today");
    default:
        return {};
    }
}

RowInk TaskGridModel::rowInk(int row) const
{
    switch (urgencyAt(row)) {
    case TaskUrgency::Overdue:
        return RowInk::Overdue;
    case TaskUrgency::DueToday:
        return RowInk::DueToday;
    case TaskUrgency::Done:
        return RowInk::Done;
    default:
        return RowInk::Usual;
    }
}

// Nothing is told by its colour alone.
QFont TaskGridModel::cellFont(int row, int field) const
{
    static const QFont bold = boldFont();
    static const QFont underlined = underlinedFont();
    static const QFont struckOut = struckOutFont();
    switch (urgencyAt(row)) {
    case TaskUrgency::Overdue:
        return bold;
    case TaskUrgency::DueToday:
        if (field == m_dueDateField) {
            return bold;
        }
        return field == m_nameField && !showsDueDate() ? underlined : QFont();
    case TaskUrgency::Done:
        return field == m_nameField ? struckOut : QFont();
    default:
        return {};
    }
}
