#pragma once

#include <QIcon>
#include <QPixmap>
#include <QStyle>

// Icons drawn in the colours of the skin; they follow a change of skin.

/// A chevron in the colour of text on the accent, for the head of a calendar.
QIcon headArrow(Qt::ArrowType direction);
/// Whether `picture` is the icon of a message box.
bool isMessagePicture(QStyle::StandardPixmap picture);
/// The icon of a message box: question, notice, warning or failure.
QIcon messagePicture(QStyle::StandardPixmap picture);
/// The icon of something that cannot be used now: in one grey that is visible on light and dark
/// backgrounds, transparent where the icon is light.
QPixmap fadedPicture(const QPixmap& picture);
