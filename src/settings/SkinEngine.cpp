#include "settings/SkinEngine.h"

#include "settings/SkinSheet.h"
#include "settings/SkinStyle.h"

#include <QApplication>

SkinEngine::SkinEngine()
{
    // The application takes ownership.
    QApplication::setStyle(new SkinStyle);
}

QString SkinEngine::skinName(const QString& path)
{
    return SkinFile::nameIn(path);
}

void SkinEngine::loadSkinFile(const QString& path)
{
    m_loaded = SkinFile::read(path);
}

void SkinEngine::applySkin()
{
    const QString sheet = skinSheet(m_loaded);
    // Every widget is polished anew by what follows.
    if (qApp->styleSheet() == sheet && m_appliedPalette == m_loaded.palette) {
        return;
    }
    if (qApp->styleSheet().isEmpty()) {
        QApplication::setPalette(m_loaded.palette);
        qApp->setStyleSheet(sheet);
    } else {
        // A palette set under a sheet does not reach widgets that the sheet has polished.
        QApplication::setStyle(new SkinStyle({m_loaded.palette, sheet}));
    }
    m_appliedPalette = m_loaded.palette;
}
