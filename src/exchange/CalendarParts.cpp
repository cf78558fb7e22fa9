#include "exchange/CalendarParts.h"

#include "exchange/ContentLine.h"
#include "exchange/ExchangeTexts.h"
#include "system/RuntimeError.h"

#include <algorithm>
#include <array>

namespace
{

constexpr std::array<std::string_view, 5> StandsAlone{
    "VTODO", "VEVENT", "VJOURNAL", "VTIMEZONE", "VFREEBUSY"};

/// The component that the line begins or ends, empty where it names none; none when it is no such line.
std::optional<std::string_view> componentOf(const std::string& line, std::string_view word)
{
    if (line.size() <= word.size()
        || !equalsIgnoringCase(std::string_view(line).substr(0, word.size()), word)) {
        return std::nullopt;
    }
    const auto content = ContentLine::of(line);
    if (!content || !content->is(word)) {
        return std::nullopt;
    }
    return content->value.substr(0, content->value.find_last_not_of(" \t") + 1);
}

bool isTaskAsEvent(const CalendarPart& part)
{
    return part.kind == QLatin1String("VEVENT")
        && (part.producer.contains(QLatin1String(Producer::KAlarm))
            || part.producer.contains(QLatin1String(Producer::Osmo)));
}

bool standsAlone(std::string_view component)
{
    return std::any_of(StandsAlone.begin(), StandsAlone.end(),
        [component](std::string_view kind) { return equalsIgnoringCase(kind, component); });
}

void note(CalendarPart& part, const QString& problem)
{
    if (part.problem.isEmpty()) {
        part.problem = problem;
    }
}

} // namespace

bool CalendarParts::readLine()
{
    if (std::exchange(m_again, false)) {
        return true;
    }
    do {
        m_line.clear();
        if (!m_lines.next(m_line)) {
            return false;
        }
        m_begin = m_lines.number();
        m_cut = m_lines.wasCut();
        // A line that is folded goes on behind a blank.
        for (std::string more; m_lines.peek() == ' ' || m_lines.peek() == '\t'; more.clear()) {
            m_lines.next(more);
            m_cut = m_cut || m_lines.wasCut() || m_line.size() + more.size() > ByteLines::LongestLine;
            if (!m_cut) {
                if (!m_line.empty() && m_line.back() == '\r') {
                    m_line.pop_back();
                }
                m_line.append(more, 1);
            }
        }
        // Others take a carriage return alone for the end of a line, too.
        std::erase(m_line, '\r');
        // What begins with a blank behind an empty line continues nothing.
    } while (m_line.empty() || m_line.front() == ' ' || m_line.front() == '\t');
    return true;
}

bool CalendarParts::findBegin(CalendarPart& part)
{
    while (readLine()) {
        const std::string_view begun = componentOf(m_line, "BEGIN").value_or("");
        if (equalsIgnoringCase(begun, "VCALENDAR")) {
            m_isCalendar = true;
            m_producer.clear();
        } else if (!m_isCalendar) {
            break;
        } else if (!begun.empty()) {
            part.kind = textOf(begun).toUpper();
            part.line = m_begin;
            part.producer = m_producer;
            m_isKept = part.kind == QLatin1String("VTODO") || part.kind == QLatin1String("VTIMEZONE")
                || isTaskAsEvent(part);
            return true;
        } else if (const auto line = ContentLine::of(m_line); line && line->is("PRODID")) {
            constexpr std::size_t MostOfProducer = 200;
            m_producer = textOf(line->value.substr(0, MostOfProducer));
        }
    }
    if (!m_isCalendar) {
        throw RuntimeError(ExchangeTexts::tr("The file is no iCalendar file."));
    }
    return false;
}

bool CalendarParts::next(CalendarPart& part)
{
    do {
        part = {};
        if (!findBegin(part)) {
            return false;
        }
        readPart(part);
        m_passedOver += m_isKept ? 0 : 1;
    } while (!m_isKept);
    return true;
}

void CalendarParts::readPart(CalendarPart& part)
{
    m_bytes = 0;
    std::vector<std::string> open{part.kind.toStdString()};
    while (readLine()) {
        const auto begun = componentOf(m_line, "BEGIN");
        const auto ended = componentOf(m_line, "END");
        if ((begun && begun->empty()) || (ended && ended->empty())) {
            continue;
        }
        if (begun && (standsAlone(*begun) || equalsIgnoringCase(*begun, "VCALENDAR"))) {
            note(part, ExchangeTexts::tr("It has no end."));
            m_again = true;
            return;
        }
        if (ended && closes(*ended, open, part)) {
            return;
        }
        if (begun && open.size() == MostLevels) {
            note(part, ExchangeTexts::tr("Its parts are nested too deeply."));
        } else if (begun) {
            open.emplace_back(*begun);
        }
        addLine(part);
    }
    note(part, ExchangeTexts::tr("The file ends in the middle of it."));
}

/// Whether the end of that component is the end of the part as a whole.
bool CalendarParts::closes(std::string_view ended, std::vector<std::string>& open, CalendarPart& part)
{
    if (equalsIgnoringCase(ended, open.back())) {
        open.pop_back();
        return open.empty();
    }
    note(part, ExchangeTexts::tr("One of its parts has no end."));
    return equalsIgnoringCase(ended, open.front()) || equalsIgnoringCase(ended, "VCALENDAR");
}

void CalendarParts::addLine(CalendarPart& part)
{
    if (!m_isKept) {
        return;
    }
    m_bytes += m_line.size();
    if (m_cut) {
        note(part, ExchangeTexts::tr("One of its lines is too long."));
    } else if (m_bytes > MostBytes || part.lines.size() == MostLines) {
        note(part, ExchangeTexts::tr("It is too large."));
    }
    // Of a part that is not read only its beginning is of use, for its name.
    constexpr std::size_t Beginning = 100;
    if (part.problem.isEmpty() || (part.lines.size() < Beginning && m_line.size() < Beginning)) {
        part.lines.push_back(m_line);
    }
}
