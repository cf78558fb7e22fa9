#pragma once

#include "reminders/UsualMoments.h"

#include <QPushButton>

class Clock;

/// A button with a menu of usual moments; those that are over for today are left out.
class UsualMomentButton : public QPushButton
{
    Q_OBJECT

public:
    /// `clock` outlives the button.
    UsualMomentButton(const QString& caption, const Clock& clock, QWidget* parent = nullptr);

signals:
    /// The user has chosen a moment, which lies ahead.
    void momentChosen(Moment moment);

private:
    void leaveOutPassed();
    void choose(UsualMoment which);

    const Clock& m_clock;
};
