#include "data/RecordReading.h"

#include "data/UnreadableRecords.h"

namespace
{

constexpr qsizetype LongestName = 40;
/// Enough bytes for that many characters; never a text of megabytes.
constexpr std::size_t MostBytes = 4 * LongestName;

/// The beginning of a field as text, whatever it holds; empty where it is null.
QString beginningOf(const RecordSet& records, int field)
{
    std::string_view stored;
    try {
        stored = records.utf8(field);
    } catch (const DatabaseError&) {
        return {};
    }
    const std::string_view read = stored.substr(0, MostBytes);
    QString text = QString::fromUtf8(read.data(), static_cast<qsizetype>(read.size()));
    if (text.size() > LongestName || read.size() < stored.size()) {
        text.truncate(LongestName);
        if (text.back().isHighSurrogate()) {
            text.chop(1);
        }
        text += QChar(0x2026);
    }
    return text.simplified();
}

} // namespace

UnreadableRecordError::UnreadableRecordError(UnreadableRecord record)
    : DatabaseError(Kind::Conversion, sentenceOf(record)), m_record(std::move(record))
{
}

UnreadableRecord RecordNaming::unreadable(const RecordSet& records, const QString& reason) const
{
    return {table, beginningOf(records, id), beginningOf(records, name), reason};
}
