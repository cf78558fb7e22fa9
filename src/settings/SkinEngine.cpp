#include "settings/SkinEngine.h"

#include "settings/SkinStyle.h"

#include <QApplication>
#include <QFileInfo>
#include <QFontMetrics>
#include <system_error>

namespace
{

/// Under a style sheet the style is not asked how large a number, date or time wants to be: as high as the
/// lists and edits beside it, with room for its text beside arrows that grow with the letters. Nor is it
/// asked where the arrow of a menu goes, which would lie in the lower corner.
QString controlSheet()
{
    return QStringLiteral("QAbstractSpinBox { min-height: %1px; }\n"
                          "QDateEdit { min-width: 9em; }\n"
                          "QTimeEdit { min-width: 4em; }\n"
                          "QPushButton::menu-indicator { subcontrol-position: center right;"
                          " width: 1.6em; }\n")
        .arg(QFontMetrics(QApplication::font()).height() + SkinStyle::SpinBoxAir);
}

} // namespace

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
    const QString sheet = controlSheet() + m_loaded.styleSheet;
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
