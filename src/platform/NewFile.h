#pragma once

#include <QFile>

class Progress;

/// A new file that is gone again unless it was finished and kept. Its process holds a lock on it meanwhile.
/// All functions throw FileError.
class NewFile
{
public:
    static constexpr qint64 ChunkSize = qint64{1024} * 1024;

    /// There must be no file of that name.
    NewFile(const QString& path, QFileDevice::Permissions permissions);
    ~NewFile();
    NewFile(const NewFile&) = delete;
    NewFile& operator=(const NewFile&) = delete;

    QString path() const { return m_file.fileName(); }
    void write(const char* bytes, qint64 size);
    /// All that `from` holds from where it stands. `progress` may be null. Throws Cancelled, too.
    void copy(QFile& from, Progress* progress);
    /// All of it is on the disk at the return, its name excepted.
    void finish();
    /// The file stays.
    void keep() { m_exists = false; }

private:
    void discard();

    QFile m_file;
    bool m_exists = false;
};
