#pragma once

#include <memory>

class QKeyEvent;

/// Knows which presses the keyboard has repeated because a key is held. Lives after the application object
/// has been made. Interface thread only.
class HeldKeys
{
public:
    HeldKeys();
    ~HeldKeys();
    HeldKeys(const HeldKeys&) = delete;
    HeldKeys& operator=(const HeldKeys&) = delete;

    /// Whether `press` is a repetition that Qt takes for a press of its own.
    bool isUntold(const QKeyEvent& press) const;

private:
    class Watch;
    std::unique_ptr<Watch> m_watch;
};
