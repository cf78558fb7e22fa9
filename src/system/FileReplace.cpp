#include "system/FileReplace.h"

#include "system/NewFile.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <QUuid>
#include <optional>
#include <system_error>

namespace
{

[[noreturn]] void fail(const QString& path, const QString& why)
{
    throw FileError(path, why);
}

[[noreturn]] void fail(const QString& path, const std::error_code& error)
{
    fail(path, FileError::reason(error));
}

void flushFolderOf(const QString& path)
{
    flushFolder(QFileInfo(path).absolutePath());
}

void removeAbandoned(const QString& folder)
{
    static const QRegularExpression name(QStringLiteral("^\\.ambertask-[0-9a-f]{32}$"));
    const QDir present(folder);
    for (const QString& file :
        present.entryList({QStringLiteral(".ambertask-*")}, QDir::Files | QDir::Hidden)) {
        if (name.match(file).hasMatch() && isAbandoned(present.filePath(file))) {
            QFile::remove(present.filePath(file));
        }
    }
}

QString unusedNameIn(const QString& folder)
{
    return folder + QStringLiteral("/.ambertask-") + QUuid::createUuid().toString(QUuid::Id128);
}

/// Collects small writes into larger ones. A failure is kept until the end, so that no exception passes
/// through the code that writes.
class GatheringDevice final : public QIODevice
{
public:
    explicit GatheringDevice(NewFile& file) : m_file(file)
    {
        QIODevice::open(QIODevice::WriteOnly | QIODevice::Unbuffered);
        m_gathered.reserve(MostGathered);
    }

    bool isSequential() const override { return true; }
    /// Throws FileError when any write has failed.
    void finish()
    {
        pass();
        if (m_failure) {
            throw FileError(*m_failure);
        }
    }

protected:
    qint64 readData(char* /*bytes*/, qint64 /*size*/) override { return -1; }
    qint64 writeData(const char* bytes, qint64 size) override
    {
        if (m_gathered.isEmpty() && size >= MostGathered) {
            put(bytes, size);
        } else {
            m_gathered.append(bytes, size);
            if (m_gathered.size() >= MostGathered) {
                pass();
            }
        }
        return m_failure ? -1 : size;
    }

private:
    void pass()
    {
        put(m_gathered.constData(), m_gathered.size());
        m_gathered.resize(0);
    }
    void put(const char* bytes, qint64 size)
    {
        if (m_failure) {
            return;
        }
        try {
            m_file.write(bytes, size);
        } catch (const FileError& error) {
            m_failure = error;
            setErrorString(error.why());
        }
    }

    static constexpr qsizetype MostGathered = qsizetype{64} * 1024;

    NewFile& m_file;
    QByteArray m_gathered;
    std::optional<FileError> m_failure;
};

void openSource(QFile& source)
{
    // Reading a pipe or a device would never end.
    if (!QFileInfo(source).isFile()) {
        fail(source.fileName(), FileError::tr("it is not a file"));
    }
    if (!source.open(QIODevice::ReadOnly | QIODevice::Unbuffered)) {
        fail(source.fileName(), FileError::reason(source));
    }
}

template <typename Fill> void replace(const QString& target, QFileDevice::Permissions permissions, Fill fill)
{
    if (target.isEmpty()) {
        fail(target, FileError::tr("there is no file name"));
    }
    const QString folder = QFileInfo(resolvedPath(target)).absolutePath();
    removeAbandoned(folder);
    NewFile beside(unusedNameIn(folder), permissions);
    fill(beside);
    beside.finish();
    moveOver(beside.path(), target);
    beside.keep();
}

} // namespace

QString resolvedPath(const QString& path)
{
    const QString resolved = QFileInfo(path).canonicalFilePath();
    return resolved.isEmpty() ? path : resolved;
}

void copyToNewFile(
    const QString& source, const QString& target, QFileDevice::Permissions permissions, Progress* progress)
{
    QFile from(source);
    openSource(from);
    NewFile to(target, permissions);
    to.copy(from, progress);
    to.finish();
    to.keep();
}

void moveOver(const QString& file, const QString& target)
{
    const QString place = resolvedPath(target);
    const QFileInfo present(place);
    if (present.exists() && !present.isFile()) {
        fail(place, FileError::tr("it is not a file"));
    }
    if (const std::error_code error = renameOver(file, place)) {
        fail(place, error);
    }
    flushFolderOf(place);
}

void replaceByCopy(
    const QString& source, const QString& target, QFileDevice::Permissions permissions, Progress* progress)
{
    QFile from(source);
    openSource(from);
    replace(target, permissions, [&](NewFile& to) { to.copy(from, progress); });
}

void replaceByBytes(const QByteArray& bytes, const QString& target, QFileDevice::Permissions permissions)
{
    replace(target, permissions, [&](NewFile& to) { to.write(bytes.constData(), bytes.size()); });
}

void replaceByWriting(
    const QString& target, QFileDevice::Permissions permissions, const std::function<void(QIODevice&)>& write)
{
    replace(target, permissions, [&](NewFile& to) {
        GatheringDevice device(to);
        write(device);
        device.finish();
    });
}

void keepAlso(
    const QString& file, const QString& target, QFileDevice::Permissions permissions, Progress* progress)
{
    const QString folder = QFileInfo(resolvedPath(target)).absolutePath();
    removeAbandoned(folder);
    const QString beside = unusedNameIn(folder);
    if (linkAs(resolvedPath(file), beside)) {
        replaceByCopy(file, target, permissions, progress);
        return;
    }
    QFile::setPermissions(beside, permissions);
    try {
        moveOver(beside, target);
    } catch (const FileError&) {
        QFile::remove(beside);
        throw;
    }
    // rename() does nothing when both names already are the same file, and leaves the new name behind.
    QFile::remove(beside);
}

void removeFile(const QString& path)
{
    QFile file(path);
    if (!file.remove() && isPresent(path)) {
        fail(path, file.errorString());
    }
    flushFolderOf(path);
}

void makeFolder(const QString& path)
{
    if (QFileInfo(path).isDir()) {
        return;
    }
    makeFolder(QFileInfo(path).absolutePath());
    // Another process may be making it at the same time.
    const std::error_code error = makePrivateFolder(path);
    if (error && !QFileInfo(path).isDir()) {
        fail(path, error);
    }
    flushFolderOf(path);
}
