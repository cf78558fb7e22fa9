#include "Require.h"
#include "exchange/CalendarParts.h"
#include "exchange/TodoReading.h"
#include "exchange/TodoWriting.h"
#include "system/RuntimeError.h"

#include <QBuffer>
#include <cstdint>
#include <vector>

namespace
{

const Moment Now(std::chrono::seconds(1'768'471'200));

/// The tasks of a file that can be read; what it does not say of them is set.
std::vector<FileTask> tasksOf(const QByteArray& bytes)
{
    QBuffer buffer;
    buffer.setData(bytes);
    buffer.open(QIODevice::ReadOnly);
    CalendarParts parts(buffer, nullptr);
    FileZones zones;
    std::vector<FileTask> tasks;
    for (CalendarPart part; parts.next(part);) {
        if (part.kind == QLatin1String("VTIMEZONE")) {
            zones.add(part);
            continue;
        }
        ReadTodo read = readTodo(part, zones, Now);
        if (!read.problem.isEmpty()) {
            continue;
        }
        TaskRecord& task = read.task.task;
        task.due = read.task.said.due ? task.due : Now;
        task.reminder = read.task.said.reminder ? task.reminder : task.due;
        require(isStorable(task.due) && isStorable(task.reminder), "the data file can hold the moments");
        tasks.push_back(std::move(read.task));
    }
    return tasks;
}

QByteArray written(const std::vector<FileTask>& tasks)
{
    std::string text = "BEGIN:VCALENDAR\r\n";
    for (const FileTask& task : tasks) {
        appendTodo(text, task.task, "20260115T100000Z");
    }
    return QByteArray::fromStdString(text + "END:VCALENDAR\r\n");
}

} // namespace

// Any bytes as an iCalendar file: refused with an error, or what was read of its tasks can be written and
// read again, and is the same.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    std::vector<FileTask> tasks;
    try {
        tasks = tasksOf(QByteArray(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size)));
    } catch (const RuntimeError& error) {
        require(!error.text().isEmpty(), "a refusal says why");
        return 0;
    }
    const QByteArray once = written(tasks);
    const std::vector<FileTask> again = tasksOf(once);
    require(again.size() == tasks.size(), "every task can be read again");
    for (std::size_t i = 0; i < tasks.size(); ++i) {
        const TaskRecord& one = tasks[i].task;
        const TaskRecord& other = again[i].task;
        require(one.name == other.name && one.description == other.description && one.sound == other.sound
                && one.file == other.file && one.uid == other.uid,
            "the texts are the same");
        require(!tasks[i].said.category || one.category == other.category, "the category is the same");
        require(one.status == other.status && one.periority == other.periority, "the codes are the same");
        require(one.due == other.due && one.reminder == other.reminder && one.reminderOn == other.reminderOn,
            "the moments are the same");
        require(one.played == other.played && one.dismissed == other.dismissed, "the state is the same");
    }
    require(written(again) == once, "and what is written of it");
    return 0;
}
