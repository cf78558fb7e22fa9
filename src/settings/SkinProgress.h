#pragma once

#include <QRect>
#include <QStyleOption>
#include <chrono>

/// The part of a bar of unknown length that is filled at that time: it goes to and fro.
QRect busyPart(const QRect& bar, std::chrono::milliseconds time);

/// That part as it is now, as a full bar of its own that belongs to no widget.
QStyleOptionProgressBar busyPartOf(const QStyleOptionProgressBar& bar);
