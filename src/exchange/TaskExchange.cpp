#include "exchange/TaskExchange.h"

#include "data/TaskArchive.h"
#include "exchange/CalendarParts.h"
#include "exchange/CsvTasks.h"
#include "exchange/ExchangeTexts.h"
#include "exchange/FileZones.h"
#include "exchange/ImportPlanning.h"
#include "exchange/TodoReading.h"
#include "exchange/TodoWriting.h"
#include "store/DatabaseError.h"
#include "store/ForeignChanges.h"
#include "system/Clock.h"
#include "system/FileReplace.h"

#include <QFile>
#include <QFileInfo>
#include <cerrno>

namespace
{

/// Collects what is written until it is worth a call.
class Output
{
public:
    explicit Output(QIODevice& device) : m_device(device) { }

    std::string& text() { return m_text; }
    void pass(std::size_t least)
    {
        if (m_text.size() < least) {
            return;
        }
        const auto size = static_cast<qint64>(m_text.size());
        if (m_device.write(m_text.data(), size) != size) {
            throw FileError(
                ExchangeTexts::tr("The tasks could not be written: %1.").arg(m_device.errorString()));
        }
        m_text.clear();
    }

private:
    QIODevice& m_device;
    std::string m_text;
};

std::string stampOf(Moment now)
{
    const QDateTime utc = QDateTime(toQDate(now), toQTime(now)).toUTC();
    return momentText(toMoment(utc.date(), utc.time())) + 'Z';
}

void giveUids(const DatabaseEngine& engine, const ExportChoice& choice)
{
    try {
        TaskArchive::giveUids(engine, choice.tasks);
    } catch (const DatabaseError&) {
        // Then they are of this export alone.
    }
}

void appendTask(std::string& out, ExchangeFormat format, const TaskRecord& task, const std::string& stamp)
{
    if (format == ExchangeFormat::ICalendar) {
        appendTodo(out, task, stamp);
    } else {
        appendCsvTask(out, task);
    }
}

void planCalendar(QIODevice& device, ImportPlanning& planning, Repeating* repeating, Progress* progress)
{
    CalendarParts parts(device, progress);
    FileZones zones;
    for (CalendarPart part; parts.next(part);) {
        if (part.kind == QLatin1String("VTIMEZONE")) {
            zones.add(part);
            continue;
        }
        ReadTodo read = readTodo(part, zones, planning.now(), repeating);
        if (!read.problem.isEmpty()) {
            planning.leaveOut(part.line, read.task.task.name, read.problem);
        } else if (read.isException) {
            planning.passOver(1);
        } else {
            planning.take(std::move(read.task));
        }
    }
    planning.passOver(parts.passedOver());
}

void planCsv(QIODevice& device, ImportPlanning& planning, const QString& shortDate, Progress* progress)
{
    CsvRows rows(device, progress);
    CsvRow row;
    rows.next(row);
    const CsvColumns columns(row, shortDate);
    while (rows.next(row)) {
        ReadCsvTask read = columns.read(row);
        if (read.problem.isEmpty()) {
            planning.take(std::move(read.task));
        } else {
            planning.leaveOut(row.line, read.task.task.name, read.problem);
        }
    }
}

} // namespace

qint64 TaskExchange::exportTo(QIODevice& device, ExchangeFormat format, const ExportChoice& choice,
    const DatabaseEngine& engine, Progress* progress)
{
    giveUids(engine, choice);
    constexpr std::size_t Chunk = std::size_t{64} * 1024;
    const std::string stamp = stampOf(engine.clock->now());
    const qint64 total = choice.tasks ? choice.tasks->size() : TaskArchive::count(engine);
    Output out(device);
    if (format == ExchangeFormat::ICalendar) {
        out.text() = "BEGIN:VCALENDAR\r\nVERSION:2.0\r\nPRODID:-//Ambertask//Ambertask//EN\r\n";
    } else {
        appendCsvHeader(out.text());
    }
    qint64 written = 0;
    TaskArchive::read(engine, choice.tasks, [&](TaskRecord& task) {
        if (task.uid.empty()) {
            task.uid = TaskArchive::newUid();
        }
        appendTask(out.text(), format, task, stamp);
        ++written;
        if (progress != nullptr && out.text().size() >= Chunk) {
            progress->advance(written, total);
        }
        out.pass(Chunk);
    });
    if (format == ExchangeFormat::ICalendar) {
        out.text() += "END:VCALENDAR\r\n";
    }
    out.pass(0);
    return written;
}

qint64 TaskExchange::exportTo(const QString& file, ExchangeFormat format, const ExportChoice& choice,
    const DatabaseEngine& engine, Progress* progress)
{
    qint64 written = 0;
    replaceByWriting(file, PublicFile,
        [&](QIODevice& device) { written = exportTo(device, format, choice, engine, progress); });
    return written;
}

ImportPlan TaskExchange::plan(
    QIODevice& device, ExchangeFormat format, const DatabaseEngine& engine, Progress* progress)
{
    ImportPlanning planning(engine);
    if (format == ExchangeFormat::ICalendar) {
        planCalendar(device, planning, engine.repeating, progress);
    } else {
        planCsv(device, planning, m_shortDate, progress);
    }
    return planning.finish();
}

ImportPlan TaskExchange::plan(
    const QString& file, ExchangeFormat format, const DatabaseEngine& engine, Progress* progress)
{
    QFile source(file);
    // Reading a device would never end.
    if (isPresent(file) && !QFileInfo(file).isFile()) {
        throw FileError(file, FileError::tr("it is not a file"));
    }
    if (!source.open(QIODevice::ReadOnly | QIODevice::Unbuffered)) {
        throw FileError(file, FileError::reason(source));
    }
    return plan(source, format, engine, progress);
}

ImportResult TaskExchange::carryOut(const ImportPlan& plan, const DatabaseEngine& engine, Progress* progress)
{
    constexpr std::size_t Step = 256;
    ImportResult result;
    TaskStoring storing(engine);
    if (engine.foreign != nullptr && engine.foreign->latest() != plan.seen) {
        throw PlanOutdatedError(
            ExchangeTexts::tr("Nothing was stored: another program has changed the tasks meanwhile."));
    }
    for (std::size_t i = 0; i < plan.tasks.size(); ++i) {
        if (progress != nullptr && i % Step == 0) {
            progress->advance(static_cast<qint64>(i), static_cast<qint64>(plan.tasks.size()));
        }
        const ImportedTask& imported = plan.tasks[i];
        using Outcome = ImportedTask::Outcome;
        if (imported.takesProgram) {
            TaskRecord task = imported.task;
            task.file = imported.program;
            storing.put(task);
            ++result.programs;
        } else if (imported.outcome != Outcome::Same) {
            storing.put(imported.task);
        }
        result.added += imported.outcome == Outcome::New ? 1 : 0;
        result.changed += imported.outcome == Outcome::Changed
                || (imported.outcome == Outcome::Same && imported.takesProgram)
            ? 1
            : 0;
    }
    result.categories = storing.finish();
    return result;
}
