#pragma once

#include "platform/printing/PrintedPages.h"

#include <QColor>
#include <QFont>
#include <QTextLayout>
#include <array>
#include <memory>
#include <vector>

class QPainter;

/// How a text is written: font, colour and line height, with what is needed to measure a short text cheaply.
class TextStyle
{
public:
    TextStyle(qreal points, bool bold, QColor colour);

    const QFont& font() const { return m_font; }
    QColor colour() const { return m_colour; }
    /// The least height of a line; scripts from other fonts may need more.
    qreal lineHeight() const { return m_lineHeight; }
    qreal ascent() const { return m_ascent; }
    /// The width of `text` on one line.
    qreal widthOf(const QString& text) const;
    /// Whether `text` certainly fits on one line of that width; answers no where only a full layout could
    /// tell.
    bool surelyFits(QStringView text, qreal width) const;

private:
    QFont m_font;
    QColor m_colour;
    qreal m_lineHeight;
    qreal m_ascent;
    std::array<qreal, 128> m_advances{};
};

/// A plain text broken into lines of a width. Each paragraph runs in its own direction.
class BrokenText
{
public:
    BrokenText(const QString& text, const TextStyle& style, qreal width);

    int lineCount() const { return static_cast<int>(m_lines.size()); }
    qreal lineHeight(int line) const { return m_lines[static_cast<std::size_t>(line)].height; }
    /// Paints one line with its top left corner at `position`.
    void paintLine(QPainter& painter, int line, QPointF position) const;

private:
    struct Line {
        std::size_t paragraph;
        int index;
        qreal height;
        qreal top; ///< from the line's place down to the text
    };
    const TextStyle* m_style;
    std::vector<std::unique_ptr<QTextLayout>> m_paragraphs;
    std::vector<Line> m_lines;
};

/// The heights of the lines that a BrokenText of these arguments has, in order, without keeping it.
void appendLineHeights(const QString& text, const TextStyle& style, qreal width, std::vector<qreal>& heights);
