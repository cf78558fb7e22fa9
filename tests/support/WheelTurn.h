#pragma once

#include <QApplication>
#include <QWheelEvent>
#include <QWidget>

/// Turns the wheel upwards over a widget. Whether the widget takes it; else it goes on to what is behind.
inline bool turnWheel(QWidget& widget)
{
    const QPoint place = widget.rect().center();
    QWheelEvent turn(place, widget.mapToGlobal(place), {}, QPoint(0, 120), {}, {}, Qt::NoScrollPhase, false);
    QApplication::sendEvent(&widget, &turn);
    return turn.isAccepted();
}
