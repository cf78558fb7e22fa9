#include "settings/SkinHeader.h"

#include <QRegularExpression>
#include <algorithm>
#include <array>

namespace
{

constexpr qsizetype LongestName = 100;

struct NamedRole {
    QStringView name;
    QPalette::ColorRole role;
};

constexpr std::array<NamedRole, 20> Roles{
    {{u"Window", QPalette::Window}, {u"WindowText", QPalette::WindowText}, {u"Base", QPalette::Base},
        {u"AlternateBase", QPalette::AlternateBase}, {u"Text", QPalette::Text},
        {u"PlaceholderText", QPalette::PlaceholderText}, {u"Button", QPalette::Button},
        {u"ButtonText", QPalette::ButtonText}, {u"BrightText", QPalette::BrightText},
        {u"Light", QPalette::Light}, {u"Midlight", QPalette::Midlight}, {u"Mid", QPalette::Mid},
        {u"Dark", QPalette::Dark}, {u"Shadow", QPalette::Shadow}, {u"Highlight", QPalette::Highlight},
        {u"HighlightedText", QPalette::HighlightedText}, {u"Link", QPalette::Link},
        {u"LinkVisited", QPalette::LinkVisited}, {u"ToolTipBase", QPalette::ToolTipBase},
        {u"ToolTipText", QPalette::ToolTipText}}};

// The name of a skin is the base name of its file, on every system.
bool couldBeFileName(const QString& name)
{
    static const QRegularExpression forbidden(QStringLiteral("[\\x00-\\x1f\\x7f/\\\\:*?\"<>|]"));
    return !name.isEmpty() && name.size() <= LongestName && !name.contains(forbidden)
        && !name.startsWith(u'.') && !name.endsWith(u'.');
}

} // namespace

SkinHeader SkinHeader::parse(QStringView text)
{
    if (!text.startsWith(u"/*")) {
        throw SkinLineError(1, tr("the file does not begin with a comment block"));
    }
    const qsizetype close = text.indexOf(u"*/", 2);
    if (close < 0) {
        throw SkinLineError(1, tr("the comment block has no end"));
    }
    SkinHeader header;
    int number = 0;
    for (const QStringView line : text.mid(2, close - 2).split(u'\n')) {
        header.takeLine(line.trimmed(), ++number);
    }
    header.m_end = close + 2;
    header.m_endLine = number;
    header.check();
    return header;
}

void SkinHeader::takeLine(QStringView line, int number)
{
    if (!line.startsWith(u'@')) {
        return;
    }
    qsizetype length = 1;
    while (length < line.size() && !line[length].isSpace()) {
        ++length;
    }
    const QStringView keyword = line.first(length);
    const QStringView value = line.mid(length).trimmed();
    if (keyword == u"@name") {
        takeText(m_info.name, keyword, value, number);
        if (!couldBeFileName(m_info.name)) {
            throw SkinLineError(number, tr("\"%1\" could not be the name of a file").arg(value));
        }
    } else if (keyword == u"@version") {
        takeText(m_info.version, keyword, value, number);
    } else if (keyword == u"@author") {
        takeText(m_info.author, keyword, value, number);
    } else if (keyword == u"@description") {
        takeText(m_info.description, keyword, value, number);
    } else if (keyword == u"@color") {
        takeColor(value, number);
    } else if (keyword == u"@palette" || keyword == u"@disabled") {
        takeRole(keyword == u"@disabled", value, number);
    } else {
        throw SkinLineError(number, tr("unknown keyword \"%1\"").arg(keyword));
    }
}

void SkinHeader::takeText(QString& field, QStringView keyword, QStringView value, int number)
{
    if (!field.isEmpty()) {
        throw SkinLineError(number, tr("a second \"%1\"").arg(keyword));
    }
    if (value.isEmpty()) {
        throw SkinLineError(number, tr("\"%1\" says nothing").arg(keyword));
    }
    field = value.toString();
}

void SkinHeader::takeColor(QStringView value, int number)
{
    static const QRegularExpression form(QStringLiteral("^([a-z][a-z0-9-]*)\\s+(#[0-9A-Fa-f]{6})$"));
    const QRegularExpressionMatch match = form.match(value.toString());
    if (!match.hasMatch()) {
        throw SkinLineError(number, tr("expected \"@color token #rrggbb\""));
    }
    if (m_colors.contains(match.captured(1))) {
        throw SkinLineError(number, tr("a second colour \"%1\"").arg(match.captured(1)));
    }
    m_colors.insert(match.captured(1), QColor(match.captured(2)));
}

void SkinHeader::takeRole(bool disabled, QStringView value, int number)
{
    static const QRegularExpression form(QStringLiteral("^(\\w+)\\s+\\$([a-z][a-z0-9-]*)$"));
    const QRegularExpressionMatch match = form.match(value.toString());
    if (!match.hasMatch()) {
        throw SkinLineError(number,
            disabled ? tr("expected \"@disabled Role $token\"") : tr("expected \"@palette Role $token\""));
    }
    const auto* role = std::find_if(Roles.begin(), Roles.end(),
        [&match](const NamedRole& candidate) { return candidate.name == match.captured(1); });
    if (role == Roles.end()) {
        throw SkinLineError(number, tr("unknown palette role \"%1\"").arg(match.captured(1)));
    }
    m_roles.append({role->role, disabled, match.captured(2), number});
}

void SkinHeader::check() const
{
    if (m_info.name.isEmpty()) {
        throw SkinLineError(1, tr("the comment block has no \"@name\""));
    }
    for (const RoleLine& line : m_roles) {
        if (!m_colors.contains(line.token)) {
            throw SkinLineError(line.line, tr("unknown colour \"$%1\"").arg(line.token));
        }
    }
}

QPalette SkinHeader::palette() const
{
    QPalette palette(QColor(0xe8, 0xe8, 0xe8));
    for (const RoleLine& line : m_roles) {
        if (!line.disabled) {
            palette.setColor(line.role, m_colors.value(line.token));
        }
    }
    for (const RoleLine& line : m_roles) {
        if (line.disabled) {
            palette.setColor(QPalette::Disabled, line.role, m_colors.value(line.token));
        }
    }
    return palette;
}
