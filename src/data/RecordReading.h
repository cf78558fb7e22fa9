#pragma once

#include "platform/database/DatabaseEngine.h"
#include "platform/database/DatabaseError.h"
#include "platform/database/RecordSet.h"

// Reading one record as a whole: it converts, or it is an error that names it.

/// The record of which a value does not convert, as an error of kind Conversion.
class UnreadableRecordError final : public DatabaseError
{
public:
    explicit UnreadableRecordError(UnreadableRecord record);
    const UnreadableRecord& record() const { return m_record; }

private:
    UnreadableRecord m_record;
};

/// Where a record set has what a record is known by.
struct RecordNaming {
    QLatin1String table;
    int id;
    int name;

    /// The current record, of which a value does not convert for that reason.
    UnreadableRecord unreadable(const RecordSet& records, const QString& reason) const;
};

/// Reads the current record by `read`; one that does not convert is an UnreadableRecordError.
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

/// Reads one record of many by `read`. False for one that does not convert, of which the listener of `engine`
/// has been told; without a listener it is an UnreadableRecordError.
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
