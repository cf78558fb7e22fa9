#pragma once

#include <functional>

/// While it lives, a Qt that cannot reach a display ends the process with a sentence and status 1; by
/// itself it would abort. What else Qt says meanwhile is passed on at the end. One at a time, around
/// the making of the application object.
class DisplayGate
{
public:
    /// `leave` is called before the process ends; no destructor is.
    explicit DisplayGate(std::function<void()> leave);
    ~DisplayGate();
    DisplayGate(const DisplayGate&) = delete;
    DisplayGate& operator=(const DisplayGate&) = delete;
};
