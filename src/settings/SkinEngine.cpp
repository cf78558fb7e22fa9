#include "settings/SkinEngine.h"

#include "settings/SkinStyle.h"

#include <QApplication>

SkinEngine::SkinEngine()
{
    // The application takes ownership.
    QApplication::setStyle(new SkinStyle);
}

SkinInfo SkinEngine::skinInfo(const QString& path)
{
    return SkinFile::read(path).info;
}

void SkinEngine::loadSkinFile(const QString& path)
{
    m_loaded = SkinFile::read(path);
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
