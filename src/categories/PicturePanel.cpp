#include "categories/PicturePanel.h"

#include "widgets/Outline.h"

#include <QEvent>
#include <QPainter>

namespace
{

constexpr int EdgeWidth = 1;
const QColor Usable(0xFF, 0xFF, 0xFF);
const QColor Unusable(0xE0, 0xE0, 0xE0);
const QColor Ink(0x20, 0x20, 0x20);
const QColor FaintInk(0x5A, 0x5A, 0x5A);
const QColor Edge(0x9A, 0x9A, 0x9A);

} // namespace

PicturePanel::PicturePanel(QWidget* parent) : QWidget(parent)
{
    setUsable(true);
}

void PicturePanel::setUsable(bool usable)
{
    setEnabled(usable);
    m_background = usable ? Usable : Unusable;
    takeColours();
    update();
}

void PicturePanel::takeColours()
{
    QPalette colours = palette();
    colours.setColor(QPalette::Window, m_background);
    colours.setColor(QPalette::WindowText, Ink);
    colours.setColor(QPalette::Disabled, QPalette::WindowText, FaintInk);
    setPalette(colours);
}

void PicturePanel::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::StyleChange) {
        // The style sheet of another skin may have changed the palette, or taken its own colours back.
        takeColours();
    }
}

void PicturePanel::paintEvent(QPaintEvent* /*event*/)
{
    // Not from the palette, which a skin's style sheet may replace.
    QPainter painter(this);
    painter.fillRect(rect(), m_background);
    paintOutline(painter, rect(), EdgeWidth, Edge);
}
