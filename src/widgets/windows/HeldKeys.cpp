#include "widgets/HeldKeys.h"

class HeldKeys::Watch
{
};

HeldKeys::HeldKeys() = default;
HeldKeys::~HeldKeys() = default;

bool HeldKeys::isUntold(const QKeyEvent&) const
{
    // The system tells of each press whether it is a repetition, and Qt hands that on.
    return false;
}
