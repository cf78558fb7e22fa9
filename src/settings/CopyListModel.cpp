#include "settings/CopyListModel.h"

#include "widgets/MomentTexts.h"

#include <QLocale>
#include <algorithm>

namespace
{

QString occasionWord(CopyOccasion occasion)
{
    switch (occasion) {
    case CopyOccasion::Day:
        return CopyListModel::tr("First change of the day");
    case CopyOccasion::Restore:
        return CopyListModel::tr("Restore");
    case CopyOccasion::Import:
        return CopyListModel::tr("Import");
    case CopyOccasion::Deletion:
        return CopyListModel::tr("Deletion of tasks");
    case CopyOccasion::Upgrade:
        return CopyListModel::tr("Upgrade");
    }
    return {};
}

/// "2 tasks added, 1 task changed, and 3 tasks gone".
QString differenceText(const CopyDifference& difference)
{
    if (!difference.unusable.isEmpty()) {
        return difference.unusable;
    }
    // Without a catalogue, as in English, Qt knows of no plural.
    QStringList parts;
    if (const int count = difference.added; count > 0) {
        parts.append(count == 1 ? CopyListModel::tr("1 task added")
                                : CopyListModel::tr("%n tasks added", nullptr, count));
    }
    if (const int count = difference.changed; count > 0) {
        parts.append(count == 1 ? CopyListModel::tr("1 task changed")
                                : CopyListModel::tr("%n tasks changed", nullptr, count));
    }
    if (const int count = difference.gone; count > 0) {
        parts.append(count == 1 ? CopyListModel::tr("1 task gone")
                                : CopyListModel::tr("%n tasks gone", nullptr, count));
    }
    if (difference.hasOtherCategories) {
        parts.append(CopyListModel::tr("other categories"));
    }
    return parts.isEmpty() ? CopyListModel::tr("nothing changed") : QLocale().createSeparatedList(parts);
}

} // namespace

CopyListModel::CopyListModel(QObject* parent) : GridModel(parent)
{
    setColumns({{MadeAt, QStringLiteral("moment"), tr("Made"), 38},
        {Occasion, QStringLiteral("occasion"), tr("Before"), 40},
        {Tasks, QStringLiteral("tasks"), tr("Tasks"), 90},
        {Difference, QStringLiteral("difference"), tr("Since then"), 20}});
}

void CopyListModel::setCopies(const QList<KeptCopy>& copies)
{
    beginResetModel();
    m_rows.clear();
    for (const KeptCopy& copy : copies) {
        m_rows.push_back({copy, std::nullopt});
    }
    endResetModel();
}

bool CopyListModel::lists(const QList<KeptCopy>& copies) const
{
    return std::equal(m_rows.begin(), m_rows.end(), copies.begin(), copies.end(),
        [](const Row& row, const KeptCopy& copy) { return row.copy.path == copy.path; });
}

void CopyListModel::setDifference(int row, const CopyDifference& difference)
{
    m_rows[static_cast<std::size_t>(row)].difference = difference;
    emit dataChanged(index(row, 0), index(row, columnCount() - 1));
}

bool CopyListModel::isUsable(int row) const
{
    const std::optional<CopyDifference>& known = m_rows[static_cast<std::size_t>(row)].difference;
    return !known || known->unusable.isEmpty();
}

int CopyListModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_rows.size());
}

QString CopyListModel::cellText(int row, int field) const
{
    const Row& shown = m_rows[static_cast<std::size_t>(row)];
    switch (field) {
    case MadeAt:
        return dateAndLongTime(shown.copy.moment);
    case Occasion:
        return occasionWord(shown.copy.occasion);
    case Tasks:
        return shown.difference && isUsable(row) ? QLocale().toString(shown.difference->tasks) : QString();
    default:
        return shown.difference ? differenceText(*shown.difference) : tr("is being compared...");
    }
}

int CopyListModel::cellIcon(int /*row*/, int /*field*/) const
{
    return NoIcon;
}

QString CopyListModel::cellWord(int /*row*/, int /*field*/) const
{
    return {};
}
