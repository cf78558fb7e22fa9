#pragma once

#include "system/RuntimeError.h"

#include <QCoreApplication>
#include <QHash>
#include <QPalette>
#include <QString>

/// A skin file that is missing, unreadable or malformed. The text names the file and, if known, the line.
class SkinError : public RuntimeError
{
public:
    using RuntimeError::RuntimeError;
};

/// The content of a skin file, checked; docs/skins.md describes the format.
struct SkinFile {
    Q_DECLARE_TR_FUNCTIONS(SkinFile)

public:
    QString name;
    /// Roles that the skin does not set have the colours of a plain light grey look.
    QPalette palette;
    /// By token.
    QHash<QString, QColor> colors;

    /// Reads the skin file at `path`. Throws SkinError.
    static SkinFile read(const QString& path);
    /// Parses `content`; `fileName` is for error texts. Throws SkinError.
    static SkinFile parse(const QByteArray& content, const QString& fileName);
    /// The name of the skin in the file at `path`; the rest of the file is not looked at. Throws SkinError.
    static QString nameIn(const QString& path);
};
