#pragma once

#include <QIcon>
#include <QPixmap>
#include <QStyle>

// Pictures that a skin draws in its own colours; they follow a change of skin.

/// A chevron in the colour of text on the accent, as the calendar's head is.
QIcon headArrow(Qt::ArrowType direction);
/// Whether `picture` is the picture of a message box.
bool isMessagePicture(QStyle::StandardPixmap picture);
/// The picture of a message box: question, notice, warning or failure.
QIcon messagePicture(QStyle::StandardPixmap picture);
/// The picture of what cannot be used now: in one grey that stands out from light and from dark grounds, with
/// the ground showing through where the picture is light.
QPixmap fadedPicture(const QPixmap& picture);
