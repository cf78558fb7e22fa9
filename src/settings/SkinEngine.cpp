#include "settings/SkinEngine.h"

#include "settings/SkinStyle.h"

#include <QApplication>
#include <QFileInfo>
#include <system_error>

SkinEngine::SkinEngine()
{
    // The application takes ownership.
    QApplication::setStyle(new SkinStyle);
}

SkinInfo SkinEngine::skinInfo(const QString& path)
{
    return read(path).info;
}

void SkinEngine::loadSkinFile(const QString& path)
{
    m_loaded = read(path);
}

const SkinFile& SkinEngine::read(const QString& path)
{
    const QFileInfo info(path);
    std::error_code error;
    const auto changed = std::filesystem::last_write_time(info.filesystemFilePath(), error);
    const auto known = m_read.constFind(path);
    if (known != m_read.constEnd() && !error && known->changed == changed && known->size == info.size()) {
        return known->skin;
    }
    m_read.remove(path);
    return m_read.insert(path, {changed, info.size(), SkinFile::read(path)})->skin;
}

void SkinEngine::applySkin()
{
    // Every widget is polished anew by what follows.
    if (qApp->styleSheet() == m_loaded.styleSheet && m_appliedPalette == m_loaded.palette) {
        return;
    }
    // A palette set under a style sheet does not reach widgets that the sheet has polished.
    qApp->setStyleSheet({});
    QApplication::setPalette(m_loaded.palette);
    qApp->setStyleSheet(m_loaded.styleSheet);
    m_appliedPalette = m_loaded.palette;
}
