#include "settings/Skins.h"

#include "system/FileReplace.h"
#include "system/PendingEvents.h"
#include "system/ProgramFolder.h"
#include "widgets/MessageBoxes.h"

#include <QDirIterator>
#include <QEvent>
#include <QFileInfo>
#include <QScopedValueRollback>
#include <QSet>
#include <QWidget>
#include <QWindow>

namespace
{

constexpr QLatin1String Ending(".skf");

constexpr QLatin1String Folder("Skins");

QStringList skinFiles(const ProgramFiles& programFiles)
{
    QStringList paths;
    QSet<QString> names;
    for (const QString& folder : programFiles.folders(Folder)) {
        QDirIterator files(folder, {QStringLiteral("*.skf")},
            QDir::Files | QDir::Hidden | QDir::System | QDir::CaseSensitive);
        while (files.hasNext()) {
            const QString path = files.next();
            if (!names.contains(files.fileName())) {
                names.insert(files.fileName());
                paths.append(path);
            }
        }
    }
    return paths;
}

/// What is wrong with a skin in a file of another name: skins are loaded by file name.
QString misnamed(const QString& fileName, const QString& skin)
{
    return Skins::tr("%1: the file has to be named \"%2\", as its skin is").arg(fileName, skin + Ending);
}

} // namespace

Skins::Skins(ProgramFiles files, MessageBoxes& messages, QObject* parent)
    : QObject(parent), m_files(std::move(files)), m_messages(messages)
{
}

Skins::~Skins() = default;

QString Skins::fileOf(const QString& name) const
{
    return m_files.find(pathIn(Folder, name + Ending));
}

QStringList Skins::names()
{
    QStringList names;
    for (const QString& file : skinFiles(m_files)) {
        try {
            names.append(SkinEngine::skinName(file));
        } catch (const SkinError&) {
            // The file is not a skin.
        }
        handlePendingEvents();
    }
    return names;
}

SkinEngine& Skins::engine()
{
    if (m_engine == nullptr) {
        m_engine = std::make_unique<SkinEngine>();
    }
    return *m_engine;
}

QString Skins::otherFileOf(const QString& name)
{
    for (const QString& file : skinFiles(m_files)) {
        try {
            if (SkinEngine::skinName(file) == name) {
                return QFileInfo(file).fileName();
            }
        } catch (const SkinError&) {
            // The file is not a skin.
        }
    }
    return {};
}

bool Skins::load(const QString& name, Asked asked)
{
    // An empty list has no name.
    if (name.isEmpty()) {
        return false;
    }
    const QString file = fileOf(name);
    const QString fileName = QFileInfo(file).fileName();
    try {
        engine().loadSkinFile(file);
    } catch (const SkinError& error) {
        const QString other = QFileInfo::exists(file) ? QString() : otherFileOf(name);
        if (other.isEmpty()) {
            noteUnreadable(fileName, error.text());
        } else if (asked == Asked::ByUser) {
            noteUnreadable(fileName, misnamed(other, name));
        }
        return false;
    }
    m_reported.removeAll(fileName);
    return true;
}

bool Skins::isLoaded(const QString& name) const
{
    return m_engine != nullptr && !name.isEmpty() && m_engine->loadedName() == name;
}

void Skins::apply()
{
    engine().applySkin();
}

bool Skins::wear(const QString& name, Asked asked)
{
    const bool isLoaded = load(name, asked);
    if (isLoaded) {
        apply();
    }
    return isLoaded;
}

QString Skins::add(const QString& file) const
{
    QString skin = SkinFile::read(file).name;
    QString name = file.section(u'/', -1);
    // The search for skins matches this ending in lower case, which matters on most file systems.
    if (name.endsWith(Ending, Qt::CaseInsensitive)) {
        name.chop(Ending.size());
        name += Ending;
    }
    if (name != skin + Ending) {
        throw SkinError(misnamed(name, skin));
    }
    makeFolder(m_files.own(Folder));
    replaceByCopy(file, m_files.own(pathIn(Folder, name)), PublicFile);
    return skin;
}

void Skins::noteUnreadable(const QString& fileName, const QString& why)
{
    if (!m_reported.contains(fileName)) {
        m_reported.append(fileName);
        m_pending.append(tr("The skin could not be used.\n%1").arg(why));
        reportSoon();
    }
}

void Skins::reportOn(QWidget* window)
{
    if (m_window == window) {
        return;
    }
    if (m_window != nullptr) {
        m_window->removeEventFilter(this);
    }
    m_window = window;
    window->installEventFilter(this);
    reportSoon();
}

// Queued: a box that comes up before its window is on the screen would open behind it.
void Skins::reportSoon()
{
    const QWindow* window = m_window == nullptr ? nullptr : m_window->windowHandle();
    if (!m_pending.isEmpty() && window != nullptr && window->isExposed()) {
        QMetaObject::invokeMethod(this, &Skins::reportPending, Qt::QueuedConnection);
    }
}

bool Skins::eventFilter(QObject* watched, QEvent* event)
{
    // The first painting follows the exposure of a window.
    if (event->type() == QEvent::Paint && watched == m_window) {
        reportSoon();
    }
    return QObject::eventFilter(watched, event);
}

void Skins::reportPending()
{
    // The window is repainted under an open report.
    if (m_reporting) {
        return;
    }
    const QScopedValueRollback guard(m_reporting, true);
    while (!m_pending.isEmpty()) {
        m_messages.tell(m_window, MessageBoxes::Icon::Exclamation, m_pending.takeFirst());
    }
}
