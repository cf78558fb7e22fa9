#include "settings/JoinedText.h"

#include <QPainter>
#include <QTextLayout>
#include <algorithm>

namespace
{

/// `text` without mnemonic marks, and the position of the first mnemonic in it; -1 for none.
struct Unmarked {
    explicit Unmarked(const QString& text)
    {
        for (qsizetype i = 0; i < text.size(); ++i) {
            if (text[i] == u'&' && i + 1 < text.size()) {
                ++i;
                if (mnemonic < 0 && text[i] != u'&') {
                    mnemonic = plain.size();
                }
            }
            plain += text[i];
        }
    }

    QString plain;
    qsizetype mnemonic = -1;
};

} // namespace

bool hasJoinedLetters(QStringView text)
{
    return std::any_of(
        text.begin(), text.end(), [](QChar letter) { return letter.joiningType() == QChar::Joining_Dual; });
}

void underlineMnemonic(QPainter& painter, const QRect& written, const QString& text)
{
    const Unmarked unmarked(text);
    if (unmarked.mnemonic < 0) {
        return;
    }
    QTextLayout layout(unmarked.plain, painter.font());
    QTextOption option(Qt::AlignLeft | Qt::AlignAbsolute);
    option.setTextDirection(unmarked.plain.isRightToLeft() ? Qt::RightToLeft : Qt::LeftToRight);
    layout.setTextOption(option);
    layout.beginLayout();
    QTextLine line = layout.createLine();
    line.setLineWidth(written.width());
    layout.endLayout();
    const auto [from, to] = std::minmax({line.cursorToX(static_cast<int>(unmarked.mnemonic)),
        line.cursorToX(static_cast<int>(unmarked.mnemonic) + 1)});
    const QFontMetricsF metrics(painter.font());
    const qreal thickness = std::max(1.0, metrics.lineWidth());
    // Below the strokes of joined letters, which run along the base line.
    const qreal top = written.top() + metrics.ascent() + metrics.descent() - thickness;
    painter.fillRect(QRectF(written.left() + from, top, to - from, thickness), painter.pen().color());
}
