#include "settings/SkinEngine.h"

#include "settings/SkinSheet.h"
#include "settings/SkinStyle.h"

#include <QApplication>

SkinEngine::SkinEngine()
{
    // Takes ownership.
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
    // Setting a style polishes every widget again: not for nothing.
    if (qApp->styleSheet() == sheet && m_appliedPalette == m_loaded.palette) {
        return;
    }
    if (qApp->styleSheet().isEmpty()) {
        QApplication::setPalette(m_loaded.palette);
        qApp->setStyleSheet(sheet);
    } else {
        // Workaround: under a style sheet QApplication::setPalette() of Qt 6.4.2 does not reach widgets
        // that the sheet has polished (QTBUG-112966; tst_qt_workarounds,
        // aPaletteDoesNotReachWhatASheetHasPolished).
        QApplication::setStyle(new SkinStyle({m_loaded.palette, sheet}));
    }
    m_appliedPalette = m_loaded.palette;
}
