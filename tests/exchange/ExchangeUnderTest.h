#pragma once

#include "data/RepeatRules.h"
#include "data/TaskArchive.h"
#include "exchange/TaskExchange.h"
#include "support/TestDatabase.h"

#include <QBuffer>
#include <QTest>

/// The exchange on a data file of its own. Short dates are day.month.year.
struct ExchangeUnderTest {
    enum class Rules { None, Daily };
    /// With rules every so many days, or none at all.
    explicit ExchangeUnderTest(Rules rules = Rules::None) : engine(database.engine())
    {
        engine.repeating = rules == Rules::Daily ? &repeating : nullptr;
    }
    ExchangeUnderTest(const ExchangeUnderTest&) = delete;
    ExchangeUnderTest& operator=(const ExchangeUnderTest&) = delete;

    TestDatabase database;
    Repeating repeating;
    DatabaseEngine engine;
    TaskExchange exchange{QStringLiteral("dd.MM.yyyy")};

    QByteArray exported(ExchangeFormat format, const ExportChoice& choice = {})
    {
        QBuffer buffer;
        buffer.open(QIODevice::WriteOnly);
        exchange.exportTo(buffer, format, choice, engine, nullptr);
        return buffer.data();
    }
    ImportPlan planOf(const QByteArray& bytes, ExchangeFormat format = ExchangeFormat::ICalendar)
    {
        QBuffer buffer;
        buffer.setData(bytes);
        buffer.open(QIODevice::ReadOnly);
        return exchange.plan(buffer, format, engine, nullptr);
    }
    ImportResult carriedOut(const ImportPlan& plan) { return exchange.carryOut(plan, engine, nullptr); }
    ImportResult imported(const QByteArray& bytes, ExchangeFormat format = ExchangeFormat::ICalendar)
    {
        return carriedOut(planOf(bytes, format));
    }
    std::vector<TaskRecord> tasks() const
    {
        std::vector<TaskRecord> all;
        TaskArchive::read(engine, std::nullopt, [&all](TaskRecord& task) { all.push_back(task); });
        return all;
    }
    /// The only task.
    TaskRecord task() const
    {
        const std::vector<TaskRecord> all = tasks();
        return all.size() == 1 ? all.front() : TaskRecord();
    }
};

/// An iCalendar file with these lines in it.
inline QByteArray calendarOf(const QByteArray& lines)
{
    return QByteArray(
        "BEGIN:VCALENDAR\nVERSION:2.0\nPRODID:-//Somebody//Else//EN\n" + lines + "END:VCALENDAR\n")
        .replace("\n", "\r\n");
}

/// One with a task of that UID and these lines.
inline QByteArray todoOf(const QByteArray& lines, const QByteArray& uid = "one@example")
{
    return calendarOf("BEGIN:VTODO\nUID:" + uid + "\nDTSTAMP:20260101T000000Z\n" + lines + "END:VTODO\n");
}

/// 2026, to the minute.
inline Moment at(unsigned month, unsigned day, int hour, int minute)
{
    using namespace std::chrono;
    return makeMoment(
        year(2026) / std::chrono::month(month) / std::chrono::day(day), hours(hour) + minutes(minute));
}
