#pragma once

#include <QApplication>
#include <QWheelEvent>
#include <QWidget>

/// Turns the wheel upwards over a widget. Returns whether the widget used it; otherwise its parent gets it.
inline bool turnWheel(QWidget& widget)
{
    const QPoint place = widget.rect().center();
    QWheelEvent turn(place, widget.mapToGlobal(place), {}, QPoint(0, 120), {}, {}, Qt::NoScrollPhase, false);
    QApplication::sendEvent(&widget, &turn);
    return turn.isAccepted();
}
