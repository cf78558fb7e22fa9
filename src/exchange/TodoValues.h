#pragma once

#include "exchange/ContentLine.h"

#include <QtGlobal>
#include <optional>
#include <string>
#include <string_view>

struct TaskRecord;

// How the values of a task stand in a VTODO. What iCalendar has no word for stands in a property of our own
// beside the nearest word, and counts as long as no other program has changed that word.

/// PERCENT-COMPLETE of a task that is completed.
inline constexpr int AllDone = 100;

/// Names of our own properties.
namespace OwnProperty
{
inline constexpr std::string_view Name = "X-AMBERTASK-SUMMARY";
inline constexpr std::string_view Description = "X-AMBERTASK-DESCRIPTION";
inline constexpr std::string_view Category = "X-AMBERTASK-CATEGORY";
inline constexpr std::string_view Status = "X-AMBERTASK-STATUS";
inline constexpr std::string_view Periority = "X-AMBERTASK-PRIORITY";
inline constexpr std::string_view Sound = "X-AMBERTASK-SOUND";
inline constexpr std::string_view File = "X-AMBERTASK-FILE";
/// In the alarm of the reminder, or in the task while the reminder is off.
inline constexpr std::string_view Reminder = "X-AMBERTASK-REMINDER";
/// Beside RRULE: from where the rule counts, and what has become of it since.
inline constexpr std::string_view Repeat = "X-AMBERTASK-REPEAT";
inline constexpr std::string_view Prefix = "X-AMBERTASK-";
} // namespace OwnProperty

namespace OwnParameter
{
/// Of COMPLETED and DTSTART: nobody has said when it was.
inline constexpr std::string_view Assumed = "X-AMBERTASK-ASSUMED";
} // namespace OwnParameter

/// The word of iCalendar for a status.
std::string_view wordOfStatus(qint32 status);
/// Our own word beside it; empty where iCalendar's says it all.
std::string ownStatusWord(qint32 status);
/// The status of iCalendar's word; "not started" for one that is unknown.
qint32 statusOfWord(std::string_view word);
/// The status that both words say together.
qint32 statusOfWords(std::string_view word, std::string_view own);

/// The number of iCalendar for a priority.
int priorityNumber(qint32 periority);
/// The priority of such a number, 0 to 9.
qint32 periorityOfNumber(int number);

std::optional<qint32> numberOf(std::string_view text);

/// A line with a text, also with one that iCalendar cannot say: that one in base64.
std::string textLine(std::string_view name, std::string_view text);
/// The text of such a line.
std::string textOfLine(const ContentLine& line);
/// What other programs see of a text that iCalendar cannot say.
std::string sayablePart(std::string_view text);

/// Takes the first line from `lines`, which are ended by line feeds; empty at their end.
std::string_view takeLine(std::string_view& lines);
/// The line of the trigger of an alarm block is not among these: it is what is left of the alarm that
/// reminds.
bool isWithoutTrigger(std::string_view alarm);
