#pragma once

#include <QRect>
#include <QStyleOption>
#include <chrono>

/// The part of a bar of unknown length that is filled at that time; it moves to and fro.
QRect busyPart(const QRect& bar, std::chrono::milliseconds time);

/// That part at present, as a full bar that belongs to no widget.
QStyleOptionProgressBar busyPartOf(const QStyleOptionProgressBar& bar);
