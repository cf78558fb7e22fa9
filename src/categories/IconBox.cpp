#include "categories/IconBox.h"

#include <QMouseEvent>
#include <QPainter>

namespace
{

constexpr int PictureEdge = 32;
constexpr int Margin = 5;

} // namespace

IconBox::IconBox(QWidget* parent) : QRadioButton(parent)
{
    setIconSize(QSize(PictureEdge, PictureEdge));
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

QSize IconBox::sizeHint() const
{
    return iconSize() + QSize(2 * Margin, 2 * Margin);
}

QSize IconBox::minimumSizeHint() const
{
    return sizeHint();
}

bool IconBox::hitButton(const QPoint& position) const
{
    return rect().contains(position);
}

void IconBox::mousePressEvent(QMouseEvent* event)
{
    setChecked(true);
    event->accept();
}

void IconBox::mouseReleaseEvent(QMouseEvent* event)
{
    event->accept();
}

void IconBox::paintEvent(QPaintEvent* /*event*/)
{
    // By hand, in the panel's colours: a skin's radio button has no place here.
    QPainter painter(this);
    const QRect picture = rect().adjusted(Margin, Margin, -Margin, -Margin);
    icon().paint(&painter, picture, Qt::AlignCenter, isEnabled() ? QIcon::Normal : QIcon::Disabled);
    const QColor line = parentWidget()->palette().color(QPalette::WindowText);
    if (isChecked()) {
        painter.setPen(line);
        painter.drawRect(rect().adjusted(0, 0, -1, -1));
    }
    if (hasFocus()) {
        painter.setPen(QPen(line, 1, Qt::DotLine));
        painter.drawRect(rect().adjusted(2, 2, -3, -3));
    }
}
