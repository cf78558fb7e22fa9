#include "report/RecordText.h"

#include <QGlyphRun>
#include <QGuiApplication>
#include <QPaintEngine>
#include <QPainter>
#include <QPainterPath>
#include <QRawFont>
#include <QTextOption>
#include <algorithm>
#include <cmath>

namespace
{

constexpr qreal PointsPerInch = 72;
// Kerning may place pairs of letters farther apart than their own widths say.
constexpr qreal KerningReserve = 1.03;
constexpr int TabBlanks = 8;
// The end of Latin, Greek and Cyrillic letters.
constexpr std::size_t EndOfSimple = 0x530;
constexpr qreal NotMeasured = -1;
constexpr std::size_t MostKept = 64;

QFont fontOf(qreal points, bool bold)
{
    QFont font(QGuiApplication::font().family());
    font.setPixelSize(qRound(points * UnitsPerInch / PointsPerInch));
    font.setBold(bold);
    font.setHintingPreference(QFont::PreferNoHinting);
    return font;
}

bool isParagraphEnd(QChar c)
{
    return c == u'\n' || c == u'\r' || c == QChar::LineSeparator || c == QChar::ParagraphSeparator;
}

/// The paragraphs of a text; control characters become blanks.
std::vector<QString> paragraphsOf(const QString& text)
{
    const auto isUsual = [](QChar c) {
        return c >= u' ' && c.category() != QChar::Other_Control && !isParagraphEnd(c);
    };
    if (std::all_of(text.begin(), text.end(), isUsual)) {
        return {text};
    }
    std::vector<QString> paragraphs(1);
    for (qsizetype i = 0; i < text.size(); ++i) {
        const QChar c = text[i];
        if (isParagraphEnd(c)) {
            if (c == u'\r' && i + 1 < text.size() && text[i + 1] == u'\n') {
                ++i;
            }
            paragraphs.emplace_back();
        } else {
            paragraphs.back() += c.category() == QChar::Other_Control && c != u'\t' ? QChar(u' ') : c;
        }
    }
    while (paragraphs.size() > 1 && paragraphs.back().trimmed().isEmpty()) {
        paragraphs.pop_back();
    }
    return paragraphs;
}

bool runsBothWays(const QString& text)
{
    return std::any_of(text.begin(), text.end(),
        [](QChar c) { return c.direction() == QChar::DirR || c.direction() == QChar::DirAL; });
}

// Workaround: outlines instead of text for QPrintPreviewWidget, which records pages in a QPicture. That
// keeps texts, not glyphs, and misplaces the blanks between runs of different directions when it is
// replayed (Qt 6.4.2; seen, not tested).
void paintOutlines(QPainter& painter, const QTextLine& line, QPointF position)
{
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    for (const QGlyphRun& run : line.glyphRuns()) {
        const QList<quint32> glyphs = run.glyphIndexes();
        const QList<QPointF> positions = run.positions();
        for (qsizetype i = 0; i < glyphs.size(); ++i) {
            const QPainterPath outline = run.rawFont().pathForGlyph(glyphs[i]);
            painter.fillPath(outline.translated(position + positions[i]), painter.pen().color());
        }
    }
    painter.restore();
}

} // namespace

TextStyle::TextStyle(qreal points, bool bold, QColor colour)
    : m_font(fontOf(points, bold)), m_colour(colour), m_metrics(m_font),
      m_lineHeight(std::ceil(m_metrics.height())), m_ascent(m_metrics.ascent()),
      m_advances(EndOfSimple, NotMeasured)
{
}

qreal TextStyle::widthOf(const QString& text) const
{
    return m_metrics.horizontalAdvance(text);
}

qreal TextStyle::simpleAdvance(QChar character) const
{
    if (character.unicode() >= EndOfSimple) {
        return 0;
    }
    qreal& advance = m_advances[character.unicode()];
    if (advance == NotMeasured) {
        advance = measuredAdvance(character);
    }
    return advance;
}

qreal TextStyle::measuredAdvance(QChar character) const
{
    const bool isSimple = (character.isLetterOrNumber() || character.isPunct() || character.isSymbol()
                              || character == u' ' || character == QChar::Nbsp)
        && character.direction() != QChar::DirR && character.direction() != QChar::DirAL
        && m_metrics.inFont(character);
    return isSimple ? m_metrics.horizontalAdvance(character) * KerningReserve : 0;
}

BrokenText::BrokenText(const QString& text, const TextStyle& style, qreal width, Use use) : m_style(&style)
{
    for (QString& paragraph : paragraphsOf(text)) {
        const std::size_t number = m_paragraphs.size();
        const std::size_t line = m_lines.size();
        m_paragraphs.push_back({std::move(paragraph), nullptr});
        if (!breakSimple(number, width)) {
            layOut(number, width);
        } else if (use == Use::Often && m_lines.size() == line + 1) {
            // Laid out instead; the line is the same, as only paragraphs of several lines could break
            // elsewhere.
            m_lines.pop_back();
            layOut(number, width);
            m_lines.back().height = style.lineHeight();
        }
    }
}

/// Breaks at blanks, and within a word only when it is longer than a line. False when the paragraph is not
/// simple.
bool BrokenText::breakSimple(std::size_t paragraph, qreal width)
{
    const QString& text = m_paragraphs[paragraph].text;
    const std::size_t before = m_lines.size();
    const auto addLine = [&](qsizetype begin, qsizetype end) {
        m_lines.push_back({paragraph, begin, end - begin, m_style->lineHeight(), 0});
    };
    qsizetype begin = 0;
    qsizetype wordBegin = 0; ///< start of the word that is being read
    qreal lineWidth = 0; ///< from the start of the line
    qreal wordWidth = 0; ///< from the start of the word
    for (qsizetype i = 0; i < text.size(); ++i) {
        const qreal advance = m_style->simpleAdvance(text[i]);
        if (advance <= 0) {
            m_lines.resize(before);
            return false;
        }
        if (text[i] == u' ') {
            // Blanks may extend beyond the end of a line.
            lineWidth += advance;
            wordWidth = 0;
            wordBegin = i + 1;
            continue;
        }
        if (lineWidth + advance > width && i > begin) {
            const bool wholeWord = wordBegin > begin;
            addLine(begin, wholeWord ? wordBegin : i);
            begin = wholeWord ? wordBegin : i;
            wordBegin = begin;
            wordWidth = wholeWord ? wordWidth : 0;
            lineWidth = wordWidth;
        }
        lineWidth += advance;
        wordWidth += advance;
    }
    addLine(begin, text.size());
    return true;
}

void BrokenText::layOut(std::size_t paragraph, qreal width)
{
    const QString& text = m_paragraphs[paragraph].text;
    auto layout = std::make_unique<QTextLayout>(text, m_style->font());
    const bool rightToLeft = text.isRightToLeft();
    QTextOption option(rightToLeft ? Qt::AlignRight | Qt::AlignAbsolute : Qt::AlignLeft | Qt::AlignAbsolute);
    option.setTextDirection(rightToLeft ? Qt::RightToLeft : Qt::LeftToRight);
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    option.setTabStopDistance(TabBlanks * m_style->widthOf(QStringLiteral(" ")));
    layout->setTextOption(option);
    // Otherwise painting would shape the text again.
    layout->setCacheEnabled(true);
    layout->beginLayout();
    qsizetype number = 0;
    for (QTextLine line = layout->createLine(); line.isValid(); line = layout->createLine()) {
        line.setLineWidth(width);
        line.setPosition(QPointF(0, 0));
        // A line of a fallback font may be taller; its base line stays that of the style.
        const qreal top = std::max(0.0, m_style->ascent() - line.ascent());
        const qreal height = std::max(m_style->lineHeight(), top + line.height());
        m_lines.push_back({paragraph, number++, 0, height, top});
    }
    layout->endLayout();
    m_paragraphs[paragraph].layout = std::move(layout);
}

void BrokenText::paintLine(QPainter& painter, int line, QPointF position) const
{
    const Line& wanted = m_lines[static_cast<std::size_t>(line)];
    const Paragraph& paragraph = m_paragraphs[wanted.paragraph];
    painter.setPen(m_style->colour());
    if (paragraph.layout == nullptr) {
        painter.setFont(m_style->font());
        painter.drawText(position + QPointF(0, m_style->ascent()),
            wanted.length == paragraph.text.size() ? paragraph.text
                                                   : paragraph.text.mid(wanted.begin, wanted.length));
        return;
    }
    const QTextLine textLine = paragraph.layout->lineAt(static_cast<int>(wanted.begin));
    const QPointF place = position + QPointF(0, wanted.top);
    if (painter.paintEngine()->type() == QPaintEngine::Picture && runsBothWays(paragraph.text)) {
        paintOutlines(painter, textLine, place);
    } else {
        textLine.draw(&painter, place);
    }
}

std::shared_ptr<const BrokenText> KeptTexts::text(const QString& text, const TextStyle& style, qreal width)
{
    if (m_texts.size() >= MostKept) {
        m_texts.clear();
    }
    std::shared_ptr<const BrokenText>& kept = m_texts[{&style, width, text}];
    if (kept == nullptr) {
        kept = std::make_shared<const BrokenText>(text, style, width, BrokenText::Use::Often);
    }
    return kept;
}

void appendLineHeights(const QString& text, const TextStyle& style, qreal width, std::vector<qreal>& heights)
{
    const BrokenText broken(text, style, width);
    for (int line = 0; line < broken.lineCount(); ++line) {
        heights.push_back(broken.lineHeight(line));
    }
}
