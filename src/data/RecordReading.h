#pragma once

#include "store/DatabaseEngine.h"
#include "store/DatabaseError.h"
#include "store/RecordSet.h"

// Reads a record as a whole: all its values convert, or an error names the record.

/// An error of kind Conversion that names the record.
class UnreadableRecordError final : public DatabaseError
{
public:
    explicit UnreadableRecordError(UnreadableRecord record);
    const UnreadableRecord& record() const { return m_record; }

private:
    UnreadableRecord m_record;
};

/// The columns by which a record is named to the user.
struct RecordNaming {
    QLatin1String table;
    int id;
    int name;

    /// Describes the current record, in which a value does not convert for `reason`.
    UnreadableRecord unreadable(const RecordSet& records, const QString& reason) const;
};

/// Reads the current record by `read`; throws UnreadableRecordError when a value does not convert.
template <typename Read> void readRecord(const RecordSet& records, const RecordNaming& naming, Read&& read)
{
    try {
        std::forward<Read>(read)();
    } catch (const OverflowError& error) {
        throw UnreadableRecordError(naming.unreadable(records, error.text()));
    } catch (const DatabaseError& error) {
        if (error.kind() != DatabaseError::Kind::Conversion) {
            throw;
        }
        throw UnreadableRecordError(naming.unreadable(records, error.text()));
    }
}

/// Reads one record of many by `read`. False when it does not convert, after telling the listener of
/// `engine`; without a listener it throws UnreadableRecordError.
template <typename Read> bool readOrLeaveOut(const DatabaseEngine& engine, Read&& read)
{
    try {
        std::forward<Read>(read)();
        return true;
    } catch (const UnreadableRecordError& error) {
        if (engine.unreadable == nullptr) {
            throw;
        }
        engine.unreadable->recordLeftOut(error.record());
        return false;
    }
}
