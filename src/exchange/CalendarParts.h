#pragma once

#include "exchange/ByteLines.h"

#include <QString>
#include <vector>

/// A component of an iCalendar file.
struct CalendarPart {
    QString kind; ///< "VTODO", "VTIMEZONE", or "VEVENT" of a program that writes its tasks as events
    QString producer; ///< what the calendar says of the program that wrote it
    qint64 line = 0; ///< where it begins
    /// Its content lines, not folded, with those of the components in it.
    std::vector<std::string> lines;
    QString problem; ///< why it cannot be read, a sentence; empty for a whole one
};

/// What some programs mean by their files.
namespace Producer
{
inline constexpr char KAlarm[] = "KAlarm"; ///< its alarms are events
inline constexpr char Osmo[] = "Osmo PIM"; ///< its tasks are events, with priorities 0 to 2, low to high
inline constexpr char Orage[] = "Orage"; ///< a day of DUE is the one after; every task has a beginning
} // namespace Producer

/// Cuts an iCalendar file into its tasks and time zones, of which it holds one at a time. However long, deep
/// or damaged the file is, a part is bounded.
class CalendarParts
{
public:
    static constexpr std::size_t MostLines = 20'000;
    static constexpr std::size_t MostBytes = std::size_t{64} * 1024 * 1024;
    static constexpr std::size_t MostLevels = 8;

    /// Both outlive the object; `progress` may be null.
    CalendarParts(QIODevice& device, Progress* progress) : m_lines(device, progress) { }

    /// Reads on to the end of the next task or time zone. False at the end of the file. Throws RuntimeError
    /// when the file is no iCalendar file or cannot be read, and what the progress throws.
    bool next(CalendarPart& part);
    /// How many components of other kinds have been passed over.
    qint64 passedOver() const { return m_passedOver; }

private:
    bool readLine();
    bool findBegin(CalendarPart& part);
    void readPart(CalendarPart& part);
    void addLine(CalendarPart& part);
    static bool closes(std::string_view ended, std::vector<std::string>& open, CalendarPart& part);

    ByteLines m_lines;
    std::string m_line; ///< the content line read last
    QString m_producer;
    qint64 m_begin = 0; ///< the number of its first line
    qint64 m_passedOver = 0;
    std::size_t m_bytes = 0; ///< of the part
    bool m_cut = false;
    bool m_isCalendar = false;
    bool m_isKept = false; ///< the part is of a kind that somebody wants
    bool m_again = false; ///< the line was not used yet
};
