#pragma once

#include "data/RepeatPattern.h"
#include "data/RepeatRules.h"

#include <QCoreApplication>
#include <QString>
#include <vector>

/// The ways to repeat that the task dialog offers, and which of them is chosen: the usual ones, the first of
/// which is never, and behind them the task's own when it is none of these. All but a rule that is no
/// pattern follow the due moment. Knows no window.
class RepeatChoices
{
    Q_DECLARE_TR_FUNCTIONS(RepeatChoices)

public:
    struct Entry {
        QString caption;
        std::string rule; ///< empty for never

        bool operator==(const Entry&) const = default;
    };

    RepeatChoices();

    /// Only the usual ones, never chosen, for a task that is due then.
    void reset(Moment due);
    /// Chooses how a stored task that is due then repeats.
    void load(const Repeat& repeat, Moment due);
    void setDue(Moment due) { m_due = due; }
    Moment due() const { return m_due; }

    std::vector<Entry> entries() const;
    int chosen() const { return static_cast<int>(m_chosen); }
    /// One of `entries()`.
    void choose(int index) { m_chosen = static_cast<std::size_t>(index); }
    void choose(const RepeatPattern& pattern);

    /// What is chosen, to be changed: every week when nothing is or when it is no pattern.
    RepeatPattern pattern() const;
    /// How the task would repeat by that pattern: as it is stored while that is the same.
    Repeat repeatBy(const RepeatPattern& pattern) const;

private:
    struct Choice {
        std::optional<RepeatPattern> pattern;
        std::string rule; ///< when it is no pattern; empty for never
        QString caption; ///< empty where it depends on the due moment

        bool operator==(const Choice& other) const { return pattern == other.pattern && rule == other.rule; }
    };
    static std::vector<Choice> usualChoices();
    void choose(Choice choice);
    Repeat repeatBy(const Choice& choice) const;

    std::vector<Choice> m_choices;
    std::size_t m_chosen = 0;
    Moment m_due{};
    // Of the stored task:
    std::optional<Repeat> m_loaded;
    Choice m_loadedChoice;
    Moment m_loadedDue{};
};
