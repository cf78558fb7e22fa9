#include "reminders/FlashBand.h"

#include <QPainter>
#include <QStyle>

namespace
{

constexpr int Padding = 6;

}

FlashBand::FlashBand(const QString& text, QWidget* parent) : QLabel(text, parent)
{
    setTextFormat(Qt::PlainText);
    setMargin(Padding);
    QFont bold = font();
    bold.setBold(true);
    setFont(bold);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
}

void FlashBand::setInverted(bool inverted)
{
    if (m_inverted != inverted) {
        m_inverted = inverted;
        update();
    }
}

// Painted by hand: a style sheet's rules for labels would override palette colours, and the inversion would
// not be seen.
void FlashBand::paintEvent(QPaintEvent*)
{
    QColor paper = palette().color(QPalette::Highlight);
    QColor ink = palette().color(QPalette::HighlightedText);
    if (m_inverted) {
        std::swap(paper, ink);
    }
    QPainter painter(this);
    painter.fillRect(rect(), paper);
    painter.setPen(ink);
    const int alignment = QStyle::visualAlignment(layoutDirection(), this->alignment()).toInt();
    style()->drawItemText(&painter, contentsRect().adjusted(margin(), 0, -margin(), 0),
        alignment | Qt::TextShowMnemonic, palette(), true, text());
}
