#include "system/NewFile.h"

#include "system/FileReplace.h"
#include "system/Progress.h"

#include <utility>

NewFile::NewFile(const QString& path, QFileDevice::Permissions permissions) : m_file(path)
{
    if (!createFile(m_file, permissions)) {
        throw FileError(path, FileError::reason(m_file));
    }
    m_exists = true;
    // Several processes may write into one folder. An unfinished file that nobody uses is abandoned.
    markUsed(m_file);
    if (permissions == PrivateFile && !keepToOwner(m_file)) {
        const QString why = FileError::reason(m_file);
        discard();
        throw FileError(path, why);
    }
}

NewFile::~NewFile()
{
    discard();
}

void NewFile::write(const char* bytes, qint64 size)
{
    for (qint64 written = 0; written < size;) {
        const qint64 step = m_file.write(bytes + written, size - written);
        if (step <= 0) {
            throw FileError(path(), FileError::reason(m_file));
        }
        written += step;
    }
}

void NewFile::copy(QFile& from, Progress* progress)
{
    QByteArray chunk(ChunkSize, Qt::Uninitialized);
    const qint64 total = from.size();
    Writeback writeback(m_file);
    for (qint64 copied = 0;;) {
        const qint64 size = from.read(chunk.data(), ChunkSize);
        if (size < 0) {
            throw FileError(from.fileName(), FileError::reason(from));
        }
        if (size == 0) {
            return;
        }
        write(chunk.constData(), size);
        copied += size;
        writeback.follow(copied);
        if (progress != nullptr) {
            progress->advance(copied, qMax(copied, total));
        }
    }
}

void NewFile::finish()
{
    if (const std::error_code error = flushToDisk(m_file)) {
        throw FileError(path(), FileError::reason(error));
    }
    m_file.close();
    if (m_file.error() != QFileDevice::NoError) {
        throw FileError(path(), FileError::reason(m_file));
    }
}

void NewFile::discard()
{
    m_file.close();
    if (std::exchange(m_exists, false)) {
        QFile::remove(path());
    }
}
