#pragma once

#include "platform/RuntimeError.h"

#include <QCoreApplication>
#include <QPalette>
#include <QString>

/// A skin file that is missing, unreadable or malformed. The text names the file and, where there is one, the
/// line.
class SkinError : public RuntimeError
{
public:
    using RuntimeError::RuntimeError;
};

/// What a skin says of itself.
struct SkinInfo {
    QString name;
    QString version;
    QString author;
    QString description;
};

/// The content of a skin file, checked; docs/skins.md describes the format.
struct SkinFile {
    Q_DECLARE_TR_FUNCTIONS(SkinFile)

public:
    SkinInfo info;
    QPalette palette;
    /// The style sheet, its tokens replaced by colours.
    QString styleSheet;

    /// Reads the skin file at `path`. Throws SkinError.
    static SkinFile read(const QString& path);
    /// The skin that `content` holds; `fileName` is for errors. Throws SkinError.
    static SkinFile parse(const QByteArray& content, const QString& fileName);
};
