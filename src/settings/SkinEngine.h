#pragma once

#include "settings/SkinFile.h"

#include <QHash>
#include <filesystem>

/// Draws all windows of the application in the colours and shapes of a skin. One instance in a program.
class SkinEngine
{
public:
    /// Gives the application the style that draws indicators and fields in the colours of the palette.
    SkinEngine();

    /// What the skin file at `path` says of itself. Throws SkinError for a file that could not be worn.
    SkinInfo skinInfo(const QString& path);
    /// Loads the skin file at `path`; it is not worn yet. Throws SkinError; then the skin loaded before
    /// stays.
    void loadSkinFile(const QString& path);
    /// The application's windows, present and future, wear the loaded skin. Cheap when they wear it already.
    void applySkin();

private:
    struct ReadSkin {
        std::filesystem::file_time_type changed;
        qint64 size;
        SkinFile skin;
    };

    /// A file is read anew only when it has changed: the list of skins and the skin in use come from the same
    /// few.
    const SkinFile& read(const QString& path);

    QHash<QString, ReadSkin> m_read;
    SkinFile m_loaded;
    QPalette m_appliedPalette;
};
