#include "exchange/TodoRepeats.h"

#include "data/TaskCodes.h"
#include "exchange/FileTask.h"
#include "exchange/FileZones.h"
#include "exchange/TodoValues.h"

#include <algorithm>

namespace
{

std::chrono::minutes leadOf(Moment due, Moment reminder)
{
    return std::chrono::floor<std::chrono::minutes>(due - reminder);
}

} // namespace

void RepeatOfFile::take(const ContentLine& line, FileZones& zones, std::string& kept)
{
    if (line.is(OwnProperty::Repeat)) {
        const auto first = zones.momentOf(line);
        m_first = first ? std::optional(first->moment) : std::nullopt;
        m_own = line.text;
        return;
    }
    if (line.is("RRULE")) {
        m_rule = line.value;
        m_place = kept.size();
        m_length = line.text.size() + 1;
        m_isPlain = line.parameters.empty();
    }
    ++m_parts;
    kept.append(line.text).append("\n");
}

bool RepeatOfFile::isOwn(Moment due) const
{
    const auto line = ContentLine::of(m_own);
    // Whoever changes the rule or the due moment knows nothing of this line.
    return line && m_first && line->parameter("X-RULE") == m_rule
        && line->parameter("X-DUE") == momentText(due) && numberOf(line->parameter("X-DONE").value_or(""))
        && numberOf(line->parameter("X-LEAD").value_or(""));
}

std::optional<Repeat> RepeatOfFile::repeatOf(const FileTask& task, Moment start, bool isOwnReminder) const
{
    using namespace std::chrono_literals;
    const Moment due = task.task.due;
    // A rule that names days counts from the beginning, which would be on another one.
    const bool isOfOtherDays = startOfDay(start) != startOfDay(due) && m_rule.find("BY") != std::string::npos;
    if (m_parts != 1 || !m_isPlain || isOfOtherDays || !isSayableRule(m_rule)
        || !RepeatRules::isUsable(m_rule)) {
        return std::nullopt;
    }
    Repeat repeat{m_rule, due, leadOf(due, task.said.reminder ? task.task.reminder : due), 0};
    if (isOwn(due)) {
        const auto line = ContentLine::of(m_own);
        repeat.first = *m_first;
        repeat.done = *numberOf(*line->parameter("X-DONE"));
        repeat.lead =
            isOwnReminder ? std::chrono::minutes(*numberOf(*line->parameter("X-LEAD"))) : repeat.lead;
        return repeat;
    }
    return RepeatRules::next(repeat, due - 1s) == due ? std::optional(repeat) : std::nullopt;
}

void RepeatOfFile::finish(FileTask& task, Repeating* repeating, Moment start, bool isOwnReminder) const
{
    task.said.repeat = repeating != nullptr;
    task.repeats = m_length > 0;
    // What is completed in other programs is over for all its days.
    if (!task.repeats || repeating == nullptr || !task.said.due
        || task.task.status == TaskStatus::Completed) {
        return;
    }
    task.task.repeat = repeatOf(task, start, isOwnReminder);
    if (task.task.repeat) {
        task.repeats = false;
        task.isOwnRepeat = isOwn(task.task.due);
        task.task.properties.erase(m_place, m_length);
    }
}

std::string repeatLine(const Repeat& repeat, Moment due, Moment reminder)
{
    if (repeat == Repeat{repeat.rule, due, leadOf(due, reminder), 0}) {
        return {};
    }
    return std::string(OwnProperty::Repeat) + ";X-RULE=\"" + repeat.rule + "\";X-DUE=" + momentText(due)
        + ";X-LEAD=" + std::to_string(repeat.lead.count()) + ";X-DONE=" + std::to_string(repeat.done) + ':'
        + momentText(repeat.first);
}

bool isSayableRule(const std::string& rule)
{
    return std::all_of(
        rule.begin(), rule.end(), [](char letter) { return letter > ' ' && letter <= '~' && letter != '"'; });
}
