#include "widgets/PlainText.h"

#include <QGuiApplication>
#include <QTextBoundaryFinder>
#include <algorithm>

namespace
{

constexpr qsizetype LongestRun = 40;
constexpr qsizetype LongestCharacter = 64;
constexpr qsizetype ToolTipCharacters = 2000;
constexpr std::size_t LongestShown = 16'384; // bytes
const QChar ZeroWidthSpace(0x200B);
const QChar FirstStrongIsolate(0x2068);
const QChar PopIsolate(0x2069);
const QChar Ellipsis(0x2026);

} // namespace

QString breakable(const QString& text)
{
    QString broken;
    broken.reserve(text.size());
    qsizetype run = 0;
    for (const QChar c : text) {
        // Not between the halves of a surrogate pair, nor before a combining mark.
        if (run >= LongestRun && !c.isLowSurrogate() && !c.isMark()) {
            broken += ZeroWidthSpace;
            run = 0;
        }
        broken += c;
        run = c.isSpace() ? 0 : run + 1;
    }
    return broken;
}

QString withoutMiddle(const QString& text, qsizetype characters)
{
    if (text.size() <= characters) {
        return text;
    }
    QString begin = text.left(characters / 2);
    QString end = text.right(characters / 2);
    if (begin.back().isHighSurrogate()) {
        begin.chop(1);
    }
    if (end.front().isLowSurrogate()) {
        end.remove(0, 1);
    }
    return begin + Ellipsis + end;
}

QString inOwnDirection(const QString& text)
{
    const bool turned = text.isRightToLeft() != QGuiApplication::isRightToLeft();
    return turned && !text.isEmpty() ? FirstStrongIsolate + text + PopIsolate : text;
}

QString shownPart(const QString& text, qsizetype characters)
{
    return text.size() <= characters ? text : text.left(lengthOfPart(text, characters)) + Ellipsis;
}

QString beginningOf(std::string_view utf8)
{
    std::size_t length = std::min(utf8.size(), LongestShown);
    // Not within the bytes of a character.
    while (
        length < utf8.size() && length > 0 && (static_cast<unsigned char>(utf8[length]) & 0xC0U) == 0x80U) {
        --length;
    }
    return QString::fromUtf8(utf8.data(), static_cast<qsizetype>(length));
}

qsizetype lengthOfPart(const QString& text, qsizetype characters)
{
    if (text.size() <= characters) {
        return text.size();
    }
    // A character with combining marks may be of any length; search back no further than this.
    const qsizetype begin = qMax(qsizetype(0), characters - LongestCharacter);
    const QStringView around = QStringView(text).mid(begin, characters - begin + 1);
    QTextBoundaryFinder borders(QTextBoundaryFinder::Grapheme, around.data(), around.size());
    borders.setPosition(around.size() - 1);
    if (borders.isAtBoundary() || borders.toPreviousBoundary() > 0) {
        return begin + borders.position();
    }
    return text[characters].isLowSurrogate() ? characters - 1 : characters;
}

QString plainToolTip(const QString& text)
{
    if (text.isEmpty()) {
        return {};
    }
    // QToolTip guesses markup, so the text is passed as escaped markup.
    const QString shown = breakable(shownPart(text, ToolTipCharacters)).toHtmlEscaped();
    return QLatin1String("<qt>") + QString(shown).replace(u'\n', QLatin1String("<br>"))
        + QLatin1String("</qt>");
}

QString withoutMnemonic(const QString& caption)
{
    QString text;
    for (qsizetype i = 0; i < caption.size(); ++i) {
        // A doubled "&" stands for the letter itself.
        if (caption[i] == u'&' && ++i == caption.size()) {
            break;
        }
        text += caption[i];
    }
    return text;
}
