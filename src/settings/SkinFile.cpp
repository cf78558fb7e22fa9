#include "settings/SkinFile.h"

#include "settings/SkinHeader.h"

#include <QFile>
#include <QFileInfo>
#include <QStringDecoder>

namespace
{

constexpr qint64 LargestFile = qint64{1024} * 1024;

QByteArray contentOf(const QString& path)
{
    const QFileInfo info(path);
    const QString fileName = info.fileName();
    if (!info.exists()) {
        throw SkinError(SkinFile::tr("%1: the file does not exist").arg(fileName));
    }
    if (!info.isFile()) {
        throw SkinError(SkinFile::tr("%1: it is not a file").arg(fileName));
    }
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        throw SkinError(SkinFile::tr("%1: %2").arg(fileName, file.errorString()));
    }
    QByteArray content = file.read(LargestFile + 1);
    if (file.error() != QFileDevice::NoError) {
        throw SkinError(SkinFile::tr("%1: %2").arg(fileName, file.errorString()));
    }
    return content;
}

QString decoded(const QByteArray& content, const QString& fileName)
{
    if (content.size() > LargestFile) {
        throw SkinError(SkinFile::tr("%1: the file is larger than 1 MiB").arg(fileName));
    }
    // Stateless: a character truncated at the end is an error, too.
    QStringDecoder decoder(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
    QString text = decoder(content);
    if (decoder.hasError() || text.contains(QChar::Null)) {
        throw SkinError(SkinFile::tr("%1: the file is not a text in UTF-8").arg(fileName));
    }
    return text;
}

SkinHeader headerIn(const QByteArray& content, const QString& fileName, SkinHeader::Part part)
{
    const QString text = decoded(content, fileName);
    try {
        return SkinHeader::parse(text, part);
    } catch (const SkinLineError& error) {
        throw SkinError(SkinFile::tr("%1, line %2: %3").arg(fileName).arg(error.line()).arg(error.text()));
    }
}

} // namespace

SkinFile SkinFile::read(const QString& path)
{
    return parse(contentOf(path), QFileInfo(path).fileName());
}

SkinFile SkinFile::parse(const QByteArray& content, const QString& fileName)
{
    const SkinHeader header = headerIn(content, fileName, SkinHeader::Part::All);
    return {header.name(), header.palette(), header.colors()};
}

QString SkinFile::nameIn(const QString& path)
{
    return headerIn(contentOf(path), QFileInfo(path).fileName(), SkinHeader::Part::NameAlone).name();
}
