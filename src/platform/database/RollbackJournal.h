#pragma once

class QString;

/// Turns the database `file` from write-ahead mode, in which it can come from another program, to
/// rollback-journal mode, and flushes that to the disk; a file in that mode is not touched. Nobody else may
/// have the file open. Throws DatabaseError (Storage).
void useRollbackJournal(const QString& file);
