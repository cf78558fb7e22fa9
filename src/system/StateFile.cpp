#include "system/StateFile.h"

#include "system/FileReplace.h"

#include <QFile>
#include <QFileInfo>
#include <algorithm>

namespace
{

/// A larger file is none of ours.
constexpr qint64 MostBytes = 8192;

} // namespace

StateFile::StateFile(QString path) : m_path(std::move(path))
{
    QFile file(m_path);
    // A pipe of that name would hold the start up.
    if (m_path.isEmpty() || !QFileInfo(m_path).isFile() || file.size() > MostBytes
        || !file.open(QIODevice::ReadOnly)) {
        return;
    }
    const QString text = QString::fromUtf8(file.read(MostBytes));
    for (const QStringView line : QStringView(text).split(u'\n')) {
        if (const qsizetype sign = line.indexOf(u'='); sign > 0) {
            m_values.insert(line.first(sign).toString(), line.mid(sign + 1).toString());
        }
    }
    m_saved = content();
}

void StateFile::set(const QString& name, const QString& value)
{
    if (value.isEmpty()) {
        m_values.remove(name);
    } else {
        m_values.insert(name, value);
    }
}

QStringList StateFile::names(const QString& prefix) const
{
    QStringList names;
    for (auto value = m_values.keyBegin(); value != m_values.keyEnd(); ++value) {
        if (value->startsWith(prefix)) {
            names.append(*value);
        }
    }
    names.sort();
    return names;
}

QByteArray StateFile::content() const
{
    QByteArray text;
    for (const QString& name : names({})) {
        text += (name + u'=' + m_values.value(name) + u'\n').toUtf8();
    }
    return text;
}

void StateFile::save()
{
    QByteArray text = content();
    if (m_path.isEmpty() || text == m_saved) {
        return;
    }
    try {
        makeFolder(QFileInfo(m_path).absolutePath());
        replaceByBytes(text, m_path, PrivateFile);
        m_saved = std::move(text);
    } catch (const FileError&) {
        // Nobody misses it before the next start, and then it is arranged again with one move.
        return;
    }
}
