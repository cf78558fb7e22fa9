#include "categories/PictureCache.h"

#include "categories/PackedPicture.h"
#include "system/FileReplace.h"
#include "system/ProgramFolder.h"

#include <QCryptographicHash>
#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <utility>

namespace
{

const QLatin1String Ending(".pixels");

} // namespace

PictureCache::PictureCache(QString folder) : m_folder(std::move(folder))
{
}

QString PictureCache::usersFolder()
{
    return pathIn(userCacheFolder(), QStringLiteral("ambertask/pictures"));
}

QString PictureCache::keyOf(const QString& path)
{
    const QFileInfo file(path);
    // With the time of the status change: a file that is copied or unpacked over another one may bring its
    // own modification time.
    const QString picture = QStringLiteral("%1\n%2\n%3\n%4")
                                .arg(file.absoluteFilePath())
                                .arg(file.size())
                                .arg(file.lastModified().toMSecsSinceEpoch())
                                .arg(file.metadataChangeTime().toMSecsSinceEpoch());
    return QString::fromLatin1(
        QCryptographicHash::hash(picture.toUtf8(), QCryptographicHash::Sha256).toHex());
}

QString PictureCache::fileOf(const QString& key) const
{
    return m_folder + u'/' + key + Ending;
}

QImage PictureCache::load(const QString& key) const
{
    QFile file(fileOf(key));
    // A pipe would block.
    if (!QFileInfo(file).isFile() || file.size() > LargestPackedPicture || !file.open(QIODevice::ReadOnly)) {
        return {};
    }
    return unpackedPicture(file.read(LargestPackedPicture + 1));
}

void PictureCache::store(const QString& key, const QImage& picture) const
{
    try {
        makeFolder(m_folder);
    } catch (const FileError&) {
        return;
    }
    // Not flushed: a file that a power cut has truncated is recognized as damaged.
    QFile file(fileOf(key));
    file.remove();
    if (file.open(QIODevice::WriteOnly | QIODevice::NewOnly, PrivateFile)) {
        file.write(packedPicture(picture));
    }
}

void PictureCache::remove(const QString& key) const
{
    QFile::remove(fileOf(key));
}

void PictureCache::tidy() const
{
    const QFileInfoList pictures =
        QDir(m_folder).entryInfoList({u'*' + Ending}, QDir::Files | QDir::Hidden | QDir::System, QDir::Time);
    for (const QFileInfo& tooMany : pictures.mid(MostPictures)) {
        QFile::remove(tooMany.filePath());
    }
}
