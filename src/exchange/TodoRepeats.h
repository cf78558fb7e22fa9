#pragma once

#include "data/RepeatRules.h"
#include "exchange/ContentLine.h"

#include <optional>
#include <string>

class FileZones;
struct FileTask;

/// How a task of a file repeats, as far as this program does the same.
class RepeatOfFile
{
public:
    /// Takes RRULE or a line that belongs to it, and appends it to `kept` when it is of others.
    void take(const ContentLine& line, FileZones& zones, std::string& kept);

    /// Says in `task`, of which all else has been read, how it repeats. A rule that this program follows is
    /// taken out of the kept lines. `start` is from where others count; `isOwnReminder` tells that the
    /// reminder was written by this program and changed by nobody. Without `repeating` nothing repeats.
    void finish(FileTask& task, Repeating* repeating, Moment start, bool isOwnReminder) const;

private:
    bool isOwn(Moment due) const;
    std::optional<Repeat> repeatOf(const FileTask& task, Moment start, bool isOwnReminder) const;

    std::string m_rule;
    std::size_t m_place = 0; ///< where its line begins among the kept ones
    std::size_t m_length = 0; ///< of that line with its end
    int m_parts = 0; ///< rules, exceptions and further days
    bool m_isPlain = true;
    std::string m_own; ///< the line of this program
    std::optional<Moment> m_first; ///< which that says
};

/// The line that says what RRULE and DUE do not; empty when there is nothing more to say.
std::string repeatLine(const Repeat& repeat, Moment due, Moment reminder);
/// Whether the rule can stand in a file.
bool isSayableRule(const std::string& rule);
