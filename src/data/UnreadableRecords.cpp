#include "data/UnreadableRecords.h"

namespace
{

const QLatin1String Categories("categories");
const QLatin1String Settings("settings");
const QString Bullet = QStringLiteral(u"\u2022 ");
const QString Paragraph = QStringLiteral("\n\n");

} // namespace

QString sentenceOf(const UnreadableRecord& record)
{
    if (record.table == Settings) {
        return record.reason;
    }
    // A name that is read from right to left must not turn the sentence around.
    constexpr QChar FirstStrongIsolate(0x2068);
    constexpr QChar PopIsolate(0x2069);
    const QString name = FirstStrongIsolate + record.name + PopIsolate;
    if (record.table == Categories) {
        return record.name.isEmpty()
            ? UnreadableRecords::tr("Category %1: %2").arg(record.id, record.reason)
            : UnreadableRecords::tr("Category %1, \"%2\": %3").arg(record.id, name, record.reason);
    }
    return record.name.isEmpty()
        ? UnreadableRecords::tr("Task %1: %2").arg(record.id, record.reason)
        : UnreadableRecords::tr("Task %1, \"%2\": %3").arg(record.id, name, record.reason);
}

void UnreadableRecords::recordLeftOut(const UnreadableRecord& record)
{
    if (!m_known.emplace(record.table, record.id).second) {
        return;
    }
    if (record.table == Settings) {
        m_settings.append(Bullet + sentenceOf(record));
        return;
    }
    m_hasCategory = m_hasCategory || record.table == Categories;
    if (m_records.size() < MostNamed) {
        m_records.append(Bullet + sentenceOf(record));
    } else {
        ++m_more;
    }
}

QString UnreadableRecords::takeText()
{
    QStringList paragraphs;
    if (!m_records.isEmpty()) {
        QStringList lines = std::exchange(m_records, {});
        if (m_more > 0) {
            lines.append(tr("and %n more", nullptr, std::exchange(m_more, 0)));
        }
        paragraphs +=
            {tr("Some values in the data file cannot be read. For this reason these are not shown:"),
                lines.join(u'\n')};
        if (std::exchange(m_hasCategory, false)) {
            paragraphs += tr("The tasks of a category that is not shown are not shown either.");
        }
        paragraphs += tr("Everything stays in the data file as it is. To have it back, restore a backup that "
                         "was made before (page Maintenance), or correct the values with another program.");
    }
    if (!m_settings.isEmpty()) {
        paragraphs += {tr("Some settings cannot be read. They are for now what they are in a new data file:"),
            std::exchange(m_settings, {}).join(u'\n'),
            tr("To store them anew, press \"Save Settings\" on the page Settings.")};
    }
    return paragraphs.join(Paragraph);
}

void UnreadableRecords::forget()
{
    m_known.clear();
    m_records.clear();
    m_settings.clear();
    m_more = 0;
    m_hasCategory = false;
}
