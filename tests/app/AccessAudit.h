#pragma once

#include <QStringList>

class QWidget;

/// What a shown, active window lacks for a user without a mouse or without sight, each fault with the control
/// that has it: a control that the keyboard does not reach, a control without a name for screen readers or
/// with the name of another one, an input without a label that leads to it, a caption without a mnemonic, a
/// mnemonic given twice, a Tab key that goes backwards. Looks at what is in front; `controls`, if given,
/// receives the number of controls looked at.
QStringList accessFaults(QWidget& window, int* controls = nullptr);
