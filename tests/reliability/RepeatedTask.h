#pragma once

#include "system/Moment.h"

#include <set>
#include <vector>

/// A task that repeats, as somebody keeps account of it with a calendar and a pencil: all moments of its
/// series are written down. Knows nothing of the program.
struct RepeatedTask {
    /// Due at the first moment of the series that is later than `start`; reminds `lead` before.
    RepeatedTask(std::vector<Moment> series, std::chrono::minutes lead, Moment start);

    /// Its reminder has come and waits for an answer.
    bool waits(Moment now) const { return isOn && reminder <= now; }
    /// How many reminders have come while this one waited for an answer, this one included.
    int came(Moment now) const;
    /// How many of the series have come from the beginning to `latest`.
    int cameInAll(Moment latest) const;
    /// A tick. It rings, once for each reminder that comes.
    void tick(Moment now);

    void dismiss(Moment now);
    void complete(Moment now);
    void remindAt(Moment moment);

    std::vector<Moment> series; ///< in order, beyond the end of the test
    std::chrono::minutes lead;
    Moment start; ///< the first due moment
    Moment due;
    Moment reminder;
    bool isOn = true;
    bool hasRung = false; ///< the present reminder
    bool isPutOff = false; ///< its moment is one that was chosen
    int done = 0;
    int rings = 0;
    std::set<Moment> rung; ///< the occurrences that have rung, but not again after they were put off
    int rungTwice = 0;
    int passedOver = 0; ///< were past when the task was completed, but their reminders had not come

private:
    /// The first moment of the series that meets the condition; there is one.
    template <typename Condition> Moment first(Condition condition) const;
    void moveTo(Moment occurrence);

    Moment m_reminded; ///< the occurrence that the reminder is for
};
