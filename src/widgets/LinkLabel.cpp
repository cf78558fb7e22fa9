#include "widgets/LinkLabel.h"

#include "widgets/AccessibleControls.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QStyleOptionFocusRect>

namespace
{

/// Pixels between the text and the focus ring.
constexpr int RingAir = 3;

} // namespace

LinkLabel::LinkLabel(const QString& text, QWidget* parent) : QLabel(text, parent)
{
    setTextFormat(Qt::PlainText);
    setFocusPolicy(Qt::StrongFocus);
    setCursor(Qt::PointingHandCursor);
    setContentsMargins(RingAir, 0, RingAir, 0);
    setAccessibleName(text);
    installAccessibleControls();
}

void LinkLabel::click()
{
    emit clicked();
}

void LinkLabel::mouseReleaseEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton && rect().contains(event->position().toPoint())) {
        click();
    }
    QLabel::mouseReleaseEvent(event);
}

void LinkLabel::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Space || event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
        if (!event->isAutoRepeat()) {
            click();
        }
    } else {
        QLabel::keyPressEvent(event);
    }
}

void LinkLabel::paintEvent(QPaintEvent* event)
{
    QLabel::paintEvent(event);
    if (hasFocus()) {
        QPainter painter(this);
        QStyleOptionFocusRect option;
        option.initFrom(this);
        style()->drawPrimitive(QStyle::PE_FrameFocusRect, &option, &painter, this);
    }
}
