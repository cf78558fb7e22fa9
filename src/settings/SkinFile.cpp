#include "settings/SkinFile.h"

#include "settings/SkinHeader.h"
#include "settings/SkinSheet.h"

#include <QFile>
#include <QFileInfo>
#include <QStringDecoder>

namespace
{

constexpr qint64 LargestFile = qint64{1024} * 1024;

QString decoded(const QByteArray& content, const QString& fileName)
{
    // Stateless: a letter that is cut off at the end is an error, too.
    QStringDecoder decoder(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
    QString text = decoder(content);
    if (decoder.hasError() || text.contains(QChar::Null)) {
        throw SkinError(SkinFile::tr("%1: the file is not a text in UTF-8").arg(fileName));
    }
    return text;
}

} // namespace

SkinFile SkinFile::read(const QString& path)
{
    const QFileInfo info(path);
    const QString fileName = info.fileName();
    if (!info.exists()) {
        throw SkinError(tr("%1: the file does not exist").arg(fileName));
    }
    if (!info.isFile()) {
        throw SkinError(tr("%1: it is not a file").arg(fileName));
    }
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        throw SkinError(tr("%1: %2").arg(fileName, file.errorString()));
    }
    const QByteArray content = file.read(LargestFile + 1);
    if (file.error() != QFileDevice::NoError) {
        throw SkinError(tr("%1: %2").arg(fileName, file.errorString()));
    }
    return parse(content, fileName);
}

SkinFile SkinFile::parse(const QByteArray& content, const QString& fileName)
{
    if (content.size() > LargestFile) {
        throw SkinError(tr("%1: the file is larger than 1 MiB").arg(fileName));
    }
    const QString text = decoded(content, fileName);
    try {
        const SkinHeader header = SkinHeader::parse(text);
        return {header.info(), header.palette(),
            expandedSheet(QStringView(text).mid(header.end()), header.endLine(), header.colors())};
    } catch (const SkinLineError& error) {
        throw SkinError(tr("%1, line %2: %3").arg(fileName).arg(error.line()).arg(error.text()));
    }
}
