#include "exchange/TodoValues.h"

#include "data/TaskCodes.h"

#include <QByteArray>
#include <algorithm>
#include <charconv>

namespace
{

constexpr std::string_view NeedsAction = "NEEDS-ACTION";
constexpr std::string_view InProcess = "IN-PROCESS";
constexpr std::string_view Done = "COMPLETED";
constexpr std::string_view CancelledTask = "CANCELLED";
constexpr std::string_view WaitingTask = "WAITING";
constexpr std::string_view DeferredTask = "DEFERRED";

constexpr int HighNumber = 1;
constexpr int NormalNumber = 5;
constexpr int LowNumber = 9;

} // namespace

std::string_view wordOfStatus(qint32 status)
{
    switch (status) {
    case TaskStatus::InProgress:
    case TaskStatus::Waiting:
        return InProcess;
    case TaskStatus::Completed:
        return Done;
    default:
        return NeedsAction;
    }
}

std::string ownStatusWord(qint32 status)
{
    switch (status) {
    case TaskStatus::NotStarted:
    case TaskStatus::InProgress:
    case TaskStatus::Completed:
        return {};
    case TaskStatus::Waiting:
        return std::string(WaitingTask);
    case TaskStatus::Deferred:
        return std::string(DeferredTask);
    default:
        return std::to_string(status);
    }
}

qint32 statusOfWord(std::string_view word)
{
    if (equalsIgnoringCase(word, InProcess)) {
        return TaskStatus::InProgress;
    }
    // A task that was given up asks for nothing any more.
    return equalsIgnoringCase(word, Done) || equalsIgnoringCase(word, CancelledTask) ? TaskStatus::Completed
                                                                                     : TaskStatus::NotStarted;
}

qint32 statusOfWords(std::string_view word, std::string_view own)
{
    std::optional<qint32> status = numberOf(own);
    if (equalsIgnoringCase(own, WaitingTask)) {
        status = TaskStatus::Waiting;
    } else if (equalsIgnoringCase(own, DeferredTask)) {
        status = TaskStatus::Deferred;
    }
    return status && equalsIgnoringCase(wordOfStatus(*status), word) ? *status : statusOfWord(word);
}

int priorityNumber(qint32 periority)
{
    switch (periority) {
    case TaskPeriority::High:
        return HighNumber;
    case TaskPeriority::Low:
        return LowNumber;
    default:
        return NormalNumber;
    }
}

qint32 periorityOfNumber(int number)
{
    if (number >= HighNumber && number < NormalNumber) {
        return TaskPeriority::High;
    }
    return number > NormalNumber && number <= LowNumber ? TaskPeriority::Low : TaskPeriority::Normal;
}

std::optional<qint32> numberOf(std::string_view text)
{
    qint32 number = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    return error == std::errc() && end == text.data() + text.size() && !text.empty() ? std::optional(number)
                                                                                     : std::nullopt;
}

std::string textLine(std::string_view name, std::string_view text)
{
    std::string line(name);
    if (isSayable(text)) {
        line += ':';
        return line += escaped(text);
    }
    // A value without a letter would be none.
    const QByteArray bytes(text.data(), static_cast<qsizetype>(text.size()));
    line += ";VALUE=BINARY;ENCODING=BASE64:";
    return line += text.empty() ? "====" : bytes.toBase64().toStdString();
}

std::string textOfLine(const ContentLine& line)
{
    if (!equalsIgnoringCase(line.parameter("ENCODING").value_or(""), "BASE64")) {
        return unescaped(line.value);
    }
    return QByteArray::fromBase64(
        QByteArray::fromRawData(line.value.data(), static_cast<qsizetype>(line.value.size())))
        .toStdString();
}

std::string sayablePart(std::string_view text)
{
    const std::string shown = escaped(text);
    return isBlank(shown) ? std::string() : unescaped(shown);
}

std::string_view takeLine(std::string_view& lines)
{
    const std::size_t end = std::min(lines.find('\n'), lines.size());
    const std::string_view line = lines.substr(0, end);
    lines.remove_prefix(std::min(end + 1, lines.size()));
    return line;
}

bool isWithoutTrigger(std::string_view alarm)
{
    for (int level = 0; !alarm.empty();) {
        const auto line = ContentLine::of(takeLine(alarm));
        level += line && line->is("BEGIN") ? 1 : 0;
        level -= line && line->is("END") ? 1 : 0;
        if (line && level == 1 && line->is("TRIGGER")) {
            return false;
        }
    }
    return true;
}
