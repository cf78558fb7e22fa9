#pragma once

#include <functional>

/// While an object of this class lives, a Qt that cannot reach a display ends the process with a sentence
/// and status 1; without it Qt would abort. Other messages of Qt are passed on at the end. One at a time,
/// around the construction of the application object.
class DisplayGate
{
public:
    /// `leave` is called before the process ends; destructors are not.
    explicit DisplayGate(std::function<void()> leave);
    ~DisplayGate();
    DisplayGate(const DisplayGate&) = delete;
    DisplayGate& operator=(const DisplayGate&) = delete;
};
