#pragma once

#include "settings/SkinFile.h"

/// Draws all windows of the application in the colours and shapes of a skin. One instance in a program.
class SkinEngine
{
public:
    /// Gives the application the style that draws indicators and fields in the colours of the palette.
    SkinEngine();

    /// The name of the skin in the file at `path`. Throws SkinError for a file that does not say it.
    static QString skinName(const QString& path);
    /// Loads the skin file at `path`; it is not worn yet. Throws SkinError; then the skin loaded before
    /// stays.
    void loadSkinFile(const QString& path);
    /// The name of the skin that was loaded last; empty for none.
    const QString& loadedName() const { return m_loaded.name; }
    /// The application's windows, present and future, wear the loaded skin. Cheap when they wear it already.
    void applySkin();

private:
    SkinFile m_loaded;
    QPalette m_appliedPalette;
};
