#pragma once

class QString;

/// Whether `file` is a database in write-ahead mode, in which changes lie in a second file beside it at
/// first. Only its head is read; false when that cannot be.
bool isInWriteAheadMode(const QString& file);

/// Turns the database `file` from write-ahead mode, in which it can come from another program, to
/// rollback-journal mode, and flushes that to the disk; a file in that mode is not touched. Throws
/// DatabaseError (Storage), at once when somebody else has the file open, and then it is as it was.
void useRollbackJournal(const QString& file);

/// Brings the changes that lie beside the database `file`, which is in write-ahead mode, into it, flushes
/// that to the disk, and leaves nothing beside it, as far as those let it who have the file open. Throws
/// DatabaseError (Storage).
void takeInWriteAheadLog(const QString& file);
