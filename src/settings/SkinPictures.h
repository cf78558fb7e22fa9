#pragma once

#include <QIcon>
#include <QStyle>

// Pictures that a skin draws in its own colours; they follow a change of skin.

/// A chevron in the colour of text on the accent, as the calendar's head is.
QIcon headArrow(Qt::ArrowType direction);
/// Whether `picture` is the picture of a message box.
bool isMessagePicture(QStyle::StandardPixmap picture);
/// The picture of a message box: question, notice, warning or failure.
QIcon messagePicture(QStyle::StandardPixmap picture);
