#pragma once

#include <QIcon>

/// `icon` with a dark red dot in its lower right corner, in the icon's sizes up to those that a notification
/// area asks for. A white rim sets the dot off from the icon and from a dark panel, red from a light one.
QIcon badgedIcon(const QIcon& icon);
