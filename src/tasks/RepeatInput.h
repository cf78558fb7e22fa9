#pragma once

#include "data/RepeatPattern.h"
#include "data/RepeatRules.h"

#include <QCoreApplication>
#include <QString>
#include <vector>

/// What the user has entered into the window in which a rule of repetition is put together, and the
/// decisions about it; knows no window.
struct RepeatInput {
    enum class End { Never, Date, Times };
    /// The control that gets the focus after a refusal.
    enum class Field { Weekdays, LastDay };
    struct Refusal {
        Field field;
        QString message;
    };

    RepeatPattern::Unit unit = RepeatPattern::Unit::Weeks;
    int every = 1;
    std::bitset<7> weekdays; ///< Monday first; count for weeks only
    int weekStart = 0; ///< as in RepeatPattern
    RepeatPattern::MonthDay monthDay = RepeatPattern::MonthDay::SameDay; ///< counts for months only
    End end = End::Never;
    std::chrono::year_month_day lastDay{}; ///< counts for `End::Date` only
    int times = 10; ///< counts for `End::Times` only

    /// What says `pattern` for a task that is due then; what the pattern leaves open is proposed. Weeks begin
    /// as in the language, unless the pattern would have other days then.
    static RepeatInput of(const RepeatPattern& pattern, Moment due);

    /// The first objection to this input, if any.
    std::optional<Refusal> refusal(Moment due) const;
    /// What the input says; it must have no objection.
    RepeatPattern pattern(Moment due) const;

private:
    Q_DECLARE_TR_FUNCTIONS(RepeatInput)
};

/// The due moment and those that follow it in the series, `most` of them at most.
std::vector<Moment> dueMoments(const Repeat& repeat, Moment due, int most);
