#pragma once

#include "settings/SkinFile.h"

/// Shows all windows of the application in the colours of a skin. One instance in a program.
class SkinEngine
{
public:
    /// Installs the style that draws indicators and fields in the colours of the palette.
    SkinEngine();

    /// The name of the skin in the file at `path`. Throws SkinError when the file does not say it.
    static QString skinName(const QString& path);
    /// Loads the skin file at `path` without applying it. Throws SkinError, and then the skin loaded before
    /// stays.
    void loadSkinFile(const QString& path);
    /// The name of the skin that was loaded last; empty for none.
    const QString& loadedName() const { return m_loaded.name; }
    /// Applies the loaded skin to all windows, present and future. Does nothing when it is applied already.
    void applySkin();

private:
    SkinFile m_loaded;
    QPalette m_appliedPalette;
};
