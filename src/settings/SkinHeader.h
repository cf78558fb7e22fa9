#pragma once

#include "system/RuntimeError.h"

#include <QColor>
#include <QCoreApplication>
#include <QHash>
#include <QPalette>

/// An error in a line, counted from 1, of a skin file.
class SkinLineError : public RuntimeError
{
public:
    SkinLineError(int line, const QString& text) : RuntimeError(text), m_line(line) { }
    int line() const { return m_line; }

private:
    int m_line;
};

/// The comment block at the start of a skin file: name, colours and palette of the skin.
class SkinHeader
{
    Q_DECLARE_TR_FUNCTIONS(SkinHeader)

public:
    enum class Part { All, NameAlone };

    /// Parses the comment block at the start of `text`, or only as far as the name. Throws SkinLineError.
    static SkinHeader parse(QStringView text, Part part);

    QString name() const { return m_texts.value(QStringLiteral("@name")); }
    /// By token.
    const QHash<QString, QColor>& colors() const { return m_colors; }
    /// Roles that the skin does not set have the colours of a plain light grey look.
    QPalette palette() const;

private:
    /// A line "@palette Role $token" or "@disabled Role $token".
    struct RoleLine {
        QPalette::ColorRole role;
        bool disabled;
        QString token;
        int line;
    };

    void takeLine(QStringView line, int number);
    void takeText(QStringView keyword, QStringView value, int number);
    void takeColor(QStringView value, int number);
    void takeRole(bool disabled, QStringView value, int number);
    void check() const;

    /// By keyword.
    QHash<QString, QString> m_texts;
    QHash<QString, QColor> m_colors;
    QList<RoleLine> m_roles;
};
