#include "Require.h"
#include "exchange/CsvTasks.h"
#include "exchange/FileZones.h"
#include "system/RuntimeError.h"

#include <QBuffer>
#include <cstdint>
#include <vector>

namespace
{

const Moment Now(std::chrono::seconds(1'768'471'200));

/// The tasks of a file that can be read; what it does not say of them is set.
std::vector<TaskRecord> tasksOf(const QByteArray& bytes)
{
    QBuffer buffer;
    buffer.setData(bytes);
    buffer.open(QIODevice::ReadOnly);
    CsvRows rows(buffer, nullptr);
    CsvRow row;
    rows.next(row);
    const CsvColumns columns(row, QStringLiteral("dd.MM.yyyy"));
    std::vector<TaskRecord> tasks;
    while (rows.next(row)) {
        ReadCsvTask read = columns.read(row);
        if (!read.problem.isEmpty()) {
            continue;
        }
        TaskRecord& task = read.task.task;
        task.due = read.task.said.due ? task.due : Now;
        task.reminder = read.task.said.reminder ? task.reminder : Now;
        require(isStorable(task.due) && isStorable(task.reminder), "the data file can hold the moments");
        tasks.push_back(std::move(task));
    }
    return tasks;
}

} // namespace

// Any bytes as a CSV file: refused with an error, or what was read of its tasks can be written and read
// again, and is the same.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    std::vector<TaskRecord> tasks;
    try {
        tasks = tasksOf(QByteArray(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size)));
    } catch (const RuntimeError& error) {
        require(!error.text().isEmpty(), "a refusal says why");
        return 0;
    }
    std::string text;
    appendCsvHeader(text);
    for (const TaskRecord& task : tasks) {
        appendCsvTask(text, task);
    }
    const std::vector<TaskRecord> again = tasksOf(QByteArray::fromStdString(text));
    require(again.size() == tasks.size(), "every task can be read again");
    for (std::size_t i = 0; i < tasks.size(); ++i) {
        const TaskRecord& one = tasks[i];
        const TaskRecord& other = again[i];
        require(one.name == other.name && one.description == other.description && one.sound == other.sound
                && one.file == other.file && one.uid == other.uid && one.category == other.category,
            "the texts are the same");
        require(one.status == other.status && one.periority == other.periority
                && one.reminderOn == other.reminderOn && one.played == other.played
                && one.dismissed == other.dismissed,
            "the codes are the same");
        require(one.due == other.due && one.reminder == other.reminder, "the moments are the same");
    }
    return 0;
}
