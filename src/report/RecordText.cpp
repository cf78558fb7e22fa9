#include "report/RecordText.h"

#include <QFontMetricsF>
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
// Pairs of letters may stand farther apart than their own widths say.
constexpr qreal KerningReserve = 1.03;
constexpr int TabBlanks = 8;

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

/// The paragraphs of a text; what is no character to look at becomes a blank.
std::vector<QString> paragraphsOf(const QString& text)
{
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

// A picture keeps texts, not glyphs, and breaks the blanks between runs of different directions when it is
// played.
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

TextStyle::TextStyle(qreal points, bool bold, QColor colour) : m_font(fontOf(points, bold)), m_colour(colour)
{
    const QFontMetricsF metrics(m_font);
    m_ascent = metrics.ascent();
    m_lineHeight = std::ceil(metrics.height());
    for (std::size_t c = u' '; c < m_advances.size() - 1; ++c) {
        m_advances[c] = metrics.horizontalAdvance(QChar(static_cast<char16_t>(c))) * KerningReserve;
    }
}

qreal TextStyle::widthOf(const QString& text) const
{
    return QFontMetricsF(m_font).horizontalAdvance(text);
}

bool TextStyle::surelyFits(QStringView text, qreal width) const
{
    qreal sum = 0;
    for (const QChar c : text) {
        const qreal advance = c.unicode() < m_advances.size() ? m_advances[c.unicode()] : 0;
        sum += advance;
        if (advance <= 0 || sum > width) {
            return false;
        }
    }
    return true;
}

BrokenText::BrokenText(const QString& text, const TextStyle& style, qreal width) : m_style(&style)
{
    for (const QString& paragraph : paragraphsOf(text)) {
        auto layout = std::make_unique<QTextLayout>(paragraph, style.font());
        const bool rightToLeft = paragraph.isRightToLeft();
        QTextOption option(
            rightToLeft ? Qt::AlignRight | Qt::AlignAbsolute : Qt::AlignLeft | Qt::AlignAbsolute);
        option.setTextDirection(rightToLeft ? Qt::RightToLeft : Qt::LeftToRight);
        option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
        option.setTabStopDistance(TabBlanks * style.widthOf(QStringLiteral(" ")));
        layout->setTextOption(option);
        layout->beginLayout();
        int index = 0;
        for (QTextLine line = layout->createLine(); line.isValid(); line = layout->createLine()) {
            line.setLineWidth(width);
            line.setPosition(QPointF(0, 0));
            // A line of another font may be higher; its letters stand on the same base all the same.
            const qreal top = std::max(0.0, style.ascent() - line.ascent());
            const qreal height = std::max(style.lineHeight(), top + line.height());
            m_lines.push_back({m_paragraphs.size(), index++, height, top});
        }
        layout->endLayout();
        m_paragraphs.push_back(std::move(layout));
    }
}

void BrokenText::paintLine(QPainter& painter, int line, QPointF position) const
{
    const Line& wanted = m_lines[static_cast<std::size_t>(line)];
    painter.setPen(m_style->colour());
    const QTextLayout& paragraph = *m_paragraphs[wanted.paragraph];
    const QTextLine textLine = paragraph.lineAt(wanted.index);
    const QPointF place = position + QPointF(0, wanted.top);
    if (painter.paintEngine()->type() == QPaintEngine::Picture && runsBothWays(paragraph.text())) {
        paintOutlines(painter, textLine, place);
    } else {
        textLine.draw(&painter, place);
    }
}

void appendLineHeights(const QString& text, const TextStyle& style, qreal width, std::vector<qreal>& heights)
{
    if (style.surelyFits(text, width)) {
        heights.push_back(style.lineHeight());
        return;
    }
    const BrokenText broken(text, style, width);
    for (int line = 0; line < broken.lineCount(); ++line) {
        heights.push_back(broken.lineHeight(line));
    }
}
