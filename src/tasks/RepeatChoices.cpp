#include "tasks/RepeatChoices.h"

#include "tasks/RepeatInput.h"
#include "widgets/RepeatTexts.h"

#include <QLocale>
#include <algorithm>

namespace
{

RepeatPattern every(int number, RepeatPattern::Unit unit)
{
    RepeatPattern pattern;
    pattern.unit = unit;
    pattern.every = number;
    return pattern;
}

RepeatPattern everyMonth(RepeatPattern::MonthDay day)
{
    RepeatPattern pattern = every(1, RepeatPattern::Unit::Months);
    pattern.monthDay = day;
    return pattern;
}

QString inWords(const Repeat& repeat)
{
    const QString text = repeatText(repeat.rule, repeat.first);
    return QLocale().toUpper(text.left(1)) + text.mid(1);
}

} // namespace

RepeatChoices::RepeatChoices() : m_choices(usualChoices())
{
}

std::vector<RepeatChoices::Choice> RepeatChoices::usualChoices()
{
    using Unit = RepeatPattern::Unit;
    using MonthDay = RepeatPattern::MonthDay;
    RepeatPattern everyWeekday = every(1, Unit::Weeks);
    everyWeekday.weekdays = workingWeek();
    return {{{}, {}, tr("Never")}, {every(1, Unit::Days), {}, tr("Every day")},
        {everyWeekday, {}, tr("Every weekday")}, {every(1, Unit::Weeks), {}, tr("Every week")},
        {every(2, Unit::Weeks), {}, tr("Every 2 weeks")},
        {everyMonth(MonthDay::SameDay), {}, tr("Every month on the same day")},
        {everyMonth(MonthDay::LastDay), {}, tr("Every month on the last day")},
        {everyMonth(MonthDay::NthWeekday), {}, {}}, {every(1, Unit::Years), {}, tr("Every year")}};
}

void RepeatChoices::reset(Moment due)
{
    m_choices = usualChoices();
    m_chosen = 0;
    m_due = due;
    m_loaded.reset();
}

void RepeatChoices::load(const Repeat& repeat, Moment due)
{
    reset(due);
    // As seen from the first moment: the 31st is due on the 28th of February, too.
    std::optional<RepeatPattern> pattern = patternOf(repeat.rule, repeat.first);
    if (pattern) {
        // Without the weekday of the first moment, which others name.
        pattern = RepeatInput::of(*pattern, repeat.first).pattern(repeat.first);
    }
    m_loaded = repeat;
    m_loadedChoice = {pattern, pattern ? std::string() : repeat.rule, {}};
    m_loadedDue = due;
    choose(m_loadedChoice);
}

std::vector<RepeatChoices::Entry> RepeatChoices::entries() const
{
    std::vector<Entry> entries;
    for (const Choice& choice : m_choices) {
        const Repeat repeat = repeatBy(choice);
        entries.push_back({choice.caption.isEmpty() ? inWords(repeat) : choice.caption, repeat.rule});
    }
    return entries;
}

void RepeatChoices::choose(const RepeatPattern& pattern)
{
    choose({pattern, {}, {}});
}

void RepeatChoices::choose(Choice choice)
{
    const std::size_t usual = usualChoices().size();
    const auto listed = std::find(m_choices.begin(), m_choices.end(), choice);
    if (listed == m_choices.end()) {
        m_choices.resize(usual);
        m_choices.push_back(std::move(choice));
        m_chosen = usual;
    } else {
        m_chosen = static_cast<std::size_t>(listed - m_choices.begin());
    }
}

RepeatPattern RepeatChoices::pattern() const
{
    return m_choices[m_chosen].pattern.value_or(every(1, RepeatPattern::Unit::Weeks));
}

Repeat RepeatChoices::repeatBy(const RepeatPattern& pattern) const
{
    return repeatBy(Choice{pattern, {}, {}});
}

Repeat RepeatChoices::repeatBy(const Choice& choice) const
{
    if (m_loaded && m_due == m_loadedDue && choice == m_loadedChoice) {
        return *m_loaded;
    }
    Repeat repeat;
    repeat.rule = choice.pattern ? ruleOf(*choice.pattern, m_due) : choice.rule;
    repeat.first = m_due;
    return repeat;
}
