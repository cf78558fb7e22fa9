#include "widgets/SpinBox.h"

#include <QWheelEvent>

SpinBox::SpinBox(QWidget* parent) : QSpinBox(parent)
{
    // No focus by the wheel, which passes over the box when the page is scrolled.
    setFocusPolicy(Qt::StrongFocus);
}

void SpinBox::wheelEvent(QWheelEvent* event)
{
    if (hasFocus()) {
        QSpinBox::wheelEvent(event);
    } else {
        event->ignore();
    }
}
