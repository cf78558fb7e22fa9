#pragma once

#include <QStringList>

class QWidget;

/// Finds what a shown, active window lacks for a user without a mouse or without sight, each fault with its
/// control: a control that the keyboard does not reach, without a name for screen readers or with the name
/// of another one, an input without a label as its buddy, a caption without a mnemonic, a mnemonic used
/// twice, a Tab order that goes backwards. Looks at the front page only; `controls`, if given, receives the
/// number of controls looked at.
QStringList accessFaults(QWidget& window, int* controls = nullptr);
