#include "categories/CustomIcons.h"

#include "platform/FileReplace.h"
#include "platform/PictureFile.h"
#include "platform/RuntimeError.h"

#include <QPixmap>
#include <algorithm>

namespace
{

/// Enough for the list's pictures on a screen with three device pixels to each of ours.
constexpr int PictureEdge = 96;

bool isPlainFileName(const QString& name)
{
    const auto isSeparator = [](QChar c) {
        return c == u'/' || c == u'\\' || c == u':' || c.isNull();
    };
    return !name.isEmpty() && std::none_of(name.begin(), name.end(), isSeparator);
}

} // namespace

CustomIcons::CustomIcons(const QString& programFolder)
    : m_folder(programFolder + QLatin1String("/custom icons"))
{
}

QIcon CustomIcons::load(const QString& name) const
{
    return loadFile(pathOf(name));
}

QIcon CustomIcons::loadFile(const QString& path)
{
    return QIcon(QPixmap::fromImage(PictureFile(path).load(PictureEdge)));
}

void CustomIcons::store(const QString& source, const QString& name) const
{
    const QString destination = pathOf(name);
    makeFolder(m_folder);
    replaceByCopy(source, destination, PublicFile);
}

QString CustomIcons::pathOf(const QString& name) const
{
    if (!isPlainFileName(name)) {
        throw RuntimeError(tr("The picture \"%1\" cannot be used: this is not a plain file name.").arg(name));
    }
    return m_folder + u'/' + name;
}
