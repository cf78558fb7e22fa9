#pragma once

#include <QByteArrayView>

class QString;

/// Whether `file` is a database in write-ahead mode, which keeps changes in a second file at first. Reads
/// the header only; false when that fails.
bool isInWriteAheadMode(const QString& file);

/// The same for the first 20 bytes of a file.
bool isInWriteAheadMode(QByteArrayView head);

/// Turns the database `file` from write-ahead mode, which another program may have set, to rollback-journal
/// mode, and flushes it; does nothing to a file in that mode. Throws DatabaseError (Storage) at once when
/// another process has the file open, and then the file is unchanged.
void useRollbackJournal(const QString& file);

/// Moves the changes that lie beside the database `file`, which is in write-ahead mode, into it, flushes it
/// and leaves nothing beside it, as far as other users of the file let it. Throws DatabaseError (Storage).
void takeInWriteAheadLog(const QString& file);
