#pragma once

#include <QCoreApplication>

class Progress;
class QFile;
class QIODevice;
struct sqlite3;
struct sqlite3_file;

/// The data file in a write transaction that has changed nothing yet: what it holds is what the last
/// operation left, and nothing lies beside it. Read through the connection's own handle, as the system drops
/// all locks of a process on a file when the process closes any handle to it.
class UnchangedFile
{
    Q_DECLARE_TR_FUNCTIONS(UnchangedFile)

public:
    /// `database` is in a write transaction.
    explicit UnchangedFile(sqlite3* database);

    /// In bytes. Throws DatabaseError (Storage).
    qint64 size() const;
    /// Writes the file to `target`, byte for byte; ends without a word when that takes no more. Throws
    /// DatabaseError (Storage) when the file cannot be read, and when another program keeps it in write-ahead
    /// mode, where a part of it is in a second file. What `progress` throws comes through.
    void copyTo(QIODevice& target, Progress* progress = nullptr) const;
    /// Whether `other`, which is open for reading at its beginning, holds the same bytes. Throws
    /// DatabaseError (Storage).
    bool isSameAs(QFile& other) const;

private:
    void read(char* bytes, qint64 size, qint64 position) const;

    sqlite3_file* m_file = nullptr;
};
