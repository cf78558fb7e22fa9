#pragma once

/// The switch of the reminder checker's timer, for windows that show a file dialog: no alert is to pop up
/// over it. Only for file dialogs: a reminder that comes up under another box is seen and heard, and
/// answered after the box; pausing would silence it as long as the box is open.
class CheckerTimer
{
public:
    CheckerTimer() = default;
    virtual ~CheckerTimer() = default;
    CheckerTimer(const CheckerTimer&) = delete;
    CheckerTimer& operator=(const CheckerTimer&) = delete;

    virtual void setCheckerEnabled(bool enabled) = 0;
};

/// Stops the checker's timer while it lives.
class CheckerPause
{
public:
    explicit CheckerPause(CheckerTimer& timer) : m_timer(timer) { m_timer.setCheckerEnabled(false); }
    ~CheckerPause() { m_timer.setCheckerEnabled(true); }
    CheckerPause(const CheckerPause&) = delete;
    CheckerPause& operator=(const CheckerPause&) = delete;

private:
    CheckerTimer& m_timer;
};
