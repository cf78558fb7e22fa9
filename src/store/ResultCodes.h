#pragma once

/// Whether a result code of SQLite is an error of the statement alone; all others concern the file or the
/// machine.
bool isStatementError(int code);

/// Whether a commit meets such an error when it is done: the change is in the file and the journal is gone.
/// Some file systems cannot flush a folder; there a power cut in the next moments may still undo the whole
/// change.
bool comesAfterTheCommit(int extendedCode);
