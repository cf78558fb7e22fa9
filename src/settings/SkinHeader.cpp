#include "settings/SkinHeader.h"

#include <algorithm>
#include <array>

namespace
{

constexpr qsizetype LongestName = 100;
// In bytes, less the ending: the limit of common file systems.
constexpr qsizetype LongestFileName = 255 - 4;

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

bool isLower(QChar c)
{
    return c >= u'a' && c <= u'z';
}

/// Letters, digits and "_".
bool isWord(QStringView text)
{
    return !text.isEmpty() && std::all_of(text.begin(), text.end(), [](QChar c) {
        return c == u'_' || (c < QChar(0x80) && c.isLetterOrNumber());
    });
}

/// Lower-case letters, digits and hyphens, beginning with a letter.
bool isToken(QStringView text)
{
    return !text.isEmpty() && isLower(text.front()) && std::all_of(text.begin(), text.end(), [](QChar c) {
        return c == u'-' || isLower(c) || (c >= u'0' && c <= u'9');
    });
}

/// "#rrggbb".
bool isColor(QStringView text)
{
    return text.size() == 7 && text.front() == u'#' && std::all_of(text.begin() + 1, text.end(), [](QChar c) {
        return (c >= u'0' && c <= u'9') || (c >= u'a' && c <= u'f') || (c >= u'A' && c <= u'F');
    });
}

/// The text up to the first blank, and what follows the blanks.
std::pair<QStringView, QStringView> firstWord(QStringView text)
{
    const auto* end = std::find_if(text.begin(), text.end(), [](QChar c) { return c.isSpace(); });
    const qsizetype length = end - text.begin();
    return {text.first(length), text.mid(length).trimmed()};
}

/// Control characters, marks of direction, line and paragraph separators.
bool isUnseen(QChar c)
{
    const QChar::Category category = c.category();
    return category == QChar::Other_Control || category == QChar::Other_Format
        || category == QChar::Separator_Line || category == QChar::Separator_Paragraph;
}

// A skin's name is the base name of its file on every system. It is also written into a statement
// unescaped, where a quote would end it.
bool couldBeFileName(const QString& name)
{
    const bool isAllowed = std::none_of(name.begin(), name.end(),
        [](QChar c) { return isUnseen(c) || QStringView(u"/\\:*?\"'`<>|").contains(c); });
    return !name.isEmpty() && name.size() <= LongestName && name.toUtf8().size() <= LongestFileName
        && isAllowed && !name.startsWith(u'.') && !name.endsWith(u'.');
}

} // namespace

SkinHeader SkinHeader::parse(QStringView text, Part part)
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
        if (part == Part::NameAlone && !header.name().isEmpty()) {
            return header;
        }
    }
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
    if (keyword == u"@name" || keyword == u"@version" || keyword == u"@author"
        || keyword == u"@description") {
        takeText(keyword, value, number);
    } else if (keyword == u"@color") {
        takeColor(value, number);
    } else if (keyword == u"@palette" || keyword == u"@disabled") {
        takeRole(keyword == u"@disabled", value, number);
    } else {
        throw SkinLineError(number, tr("unknown keyword \"%1\"").arg(keyword));
    }
}

void SkinHeader::takeText(QStringView keyword, QStringView value, int number)
{
    if (m_texts.contains(keyword.toString())) {
        throw SkinLineError(number, tr("a second \"%1\"").arg(keyword));
    }
    if (value.isEmpty()) {
        throw SkinLineError(number, tr("\"%1\" says nothing").arg(keyword));
    }
    m_texts.insert(keyword.toString(), value.toString());
    if (keyword == u"@name" && !couldBeFileName(name())) {
        throw SkinLineError(number, tr("\"%1\" could not be the name of a file").arg(value));
    }
}

void SkinHeader::takeColor(QStringView value, int number)
{
    const auto [token, color] = firstWord(value);
    if (!isToken(token) || !isColor(color)) {
        throw SkinLineError(number, tr("expected \"@color token #rrggbb\""));
    }
    if (m_colors.contains(token.toString())) {
        throw SkinLineError(number, tr("a second colour \"%1\"").arg(token));
    }
    m_colors.insert(token.toString(), QColor(color));
}

void SkinHeader::takeRole(bool disabled, QStringView value, int number)
{
    const auto words = firstWord(value);
    const QStringView name = words.first;
    const QStringView token = words.second;
    if (!token.startsWith(u'$') || !isToken(token.mid(1)) || !isWord(name)) {
        throw SkinLineError(number,
            disabled ? tr("expected \"@disabled Role $token\"") : tr("expected \"@palette Role $token\""));
    }
    const auto* role = std::find_if(
        Roles.begin(), Roles.end(), [&name](const NamedRole& candidate) { return candidate.name == name; });
    if (role == Roles.end()) {
        throw SkinLineError(number, tr("unknown palette role \"%1\"").arg(name));
    }
    m_roles.append({role->role, disabled, token.mid(1).toString(), number});
}

void SkinHeader::check() const
{
    if (name().isEmpty()) {
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
