#pragma once

#include "settings/SkinFile.h"

#include <QColor>
#include <QHash>

/// A fault in a line of a skin file, counted from 1.
class SkinLineError : public RuntimeError
{
public:
    SkinLineError(int line, const QString& text) : RuntimeError(text), m_line(line) { }
    int line() const { return m_line; }

private:
    int m_line;
};

/// The colours of a skin by token.
using SkinColors = QHash<QString, QColor>;

/// The leading comment block of a skin file: what the skin says of itself, its colours and its palette.
class SkinHeader
{
    Q_DECLARE_TR_FUNCTIONS(SkinHeader)

public:
    /// Reads the comment block at the start of `text`. Throws SkinLineError.
    static SkinHeader parse(QStringView text);

    const SkinInfo& info() const { return m_info; }
    const SkinColors& colors() const { return m_colors; }
    /// Roles that the skin leaves out have the colours of a plain light grey look.
    QPalette palette() const;
    /// Where the comment block ends, and the number of that line.
    qsizetype end() const { return m_end; }
    int endLine() const { return m_endLine; }

private:
    /// A line "@palette Role $token" or "@disabled Role $token".
    struct RoleLine {
        QPalette::ColorRole role;
        bool disabled;
        QString token;
        int line;
    };

    void takeLine(QStringView line, int number);
    void takeText(QString& field, QStringView keyword, QStringView value, int number);
    void takeColor(QStringView value, int number);
    void takeRole(bool disabled, QStringView value, int number);
    void check() const;

    SkinInfo m_info;
    SkinColors m_colors;
    QList<RoleLine> m_roles;
    qsizetype m_end = 0;
    int m_endLine = 1;
};
