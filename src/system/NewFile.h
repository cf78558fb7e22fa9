#pragma once

#include <QFile>

class Progress;

/// A new file that is removed again unless it was finished and kept. Locked by its process meanwhile. All
/// functions throw FileError.
class NewFile
{
public:
    static constexpr qint64 ChunkSize = qint64{1024} * 1024;

    /// Throws when a file of that name exists.
    NewFile(const QString& path, QFileDevice::Permissions permissions);
    ~NewFile();
    NewFile(const NewFile&) = delete;
    NewFile& operator=(const NewFile&) = delete;

    QString path() const { return m_file.fileName(); }
    void write(const char* bytes, qint64 size);
    /// Appends what `from` holds behind its current position. `progress` may be null; what it throws
    /// (Cancelled) comes through.
    void copy(QFile& from, Progress* progress);
    /// Flushes the content to the disk; the folder entry is not flushed.
    void finish();
    /// The file is not removed any more.
    void keep() { m_exists = false; }

private:
    void discard();

    QFile m_file;
    bool m_exists = false;
};
