#pragma once

#include "widgets/printing/PrintedPages.h"

#include <QColor>
#include <QFont>
#include <QFontMetricsF>
#include <QTextLayout>
#include <map>
#include <memory>
#include <tuple>
#include <vector>

class QPainter;

/// How a text is written: font, colour and line height, and widths for breaking simple texts quickly.
class TextStyle
{
public:
    TextStyle(qreal points, bool bold, QColor colour);

    const QFont& font() const { return m_font; }
    QColor colour() const { return m_colour; }
    /// The minimum height of a line; fallback fonts may need more.
    qreal lineHeight() const { return m_lineHeight; }
    qreal ascent() const { return m_ascent; }
    /// The width of `text` on one line.
    qreal widthOf(const QString& text) const;
    /// At least the width that a simple character takes within a text. Simple are characters of this font
    /// that are not shaped and run from left to right; 0 for others.
    qreal simpleAdvance(QChar character) const;

private:
    qreal measuredAdvance(QChar character) const;

    QFont m_font;
    QColor m_colour;
    QFontMetricsF m_metrics;
    qreal m_lineHeight;
    qreal m_ascent;
    /// By character; negative when not measured yet.
    mutable std::vector<qreal> m_advances;
};

/// A plain text broken into lines of a width. Each paragraph runs in its own direction.
class BrokenText
{
public:
    /// For a text that is painted often the shaped letters are kept.
    enum class Use { Once, Often };

    BrokenText(const QString& text, const TextStyle& style, qreal width, Use use = Use::Once);

    int lineCount() const { return static_cast<int>(m_lines.size()); }
    qreal lineHeight(int line) const { return m_lines[static_cast<std::size_t>(line)].height; }
    /// Paints one line with its top left corner at `position`.
    void paintLine(QPainter& painter, int line, QPointF position) const;

private:
    /// A paragraph of simple characters that is painted once is broken by this class, in a tenth of the
    /// time.
    struct Paragraph {
        QString text;
        std::unique_ptr<QTextLayout> layout; ///< null when the paragraph was broken by this class
    };
    struct Line {
        std::size_t paragraph;
        qsizetype begin; ///< in the text, or the number of the line in the layout
        qsizetype length;
        qreal height;
        qreal top; ///< from the top of the line to its text
    };
    bool breakSimple(std::size_t paragraph, qreal width);
    void layOut(std::size_t paragraph, qreal width);

    const TextStyle* m_style;
    std::vector<Paragraph> m_paragraphs;
    std::vector<Line> m_lines;
};

/// Texts that occur in most records, each broken once. Holds a few dozen.
class KeptTexts
{
public:
    std::shared_ptr<const BrokenText> text(const QString& text, const TextStyle& style, qreal width);

private:
    std::map<std::tuple<const TextStyle*, qreal, QString>, std::shared_ptr<const BrokenText>> m_texts;
};

/// Appends the heights of the lines of such a BrokenText, in order, without keeping it.
void appendLineHeights(const QString& text, const TextStyle& style, qreal width, std::vector<qreal>& heights);
