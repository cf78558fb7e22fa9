#include "data/TaskRepeats.h"

#include "data/ClsDatabase.h"
#include "data/DataFileRoad.h"
#include "data/SqlText.h"
#include "store/DatabaseError.h"
#include "store/ForeignChanges.h"

#include <QCoreApplication>

namespace
{

const QLatin1String SelectRepeats("select of_task,rule,first_moment,lead,done from repeats");

} // namespace

bool TaskRepeats::isAny(const DatabaseEngine& engine)
{
    if (engine.repeating == nullptr) {
        return false;
    }
    const std::optional<bool> known = engine.repeating->isUsed();
    // The first rule may have come from another process since the last check.
    const bool isOutdated = known == false && engine.foreign != nullptr && engine.foreign->arePending();
    if (!known || isOutdated) {
        engine.repeating->setUsed(somethingRepeats(engine));
    }
    return *engine.repeating->isUsed();
}

std::map<qint32, Repeat> TaskRepeats::all(const DatabaseEngine& engine)
{
    std::map<qint32, Repeat> repeats;
    if (!isAny(engine)) {
        return repeats;
    }
    Connection connection = ClsDatabase(engine).Connect();
    connection.open();
    RecordSet records = connection.execute(SelectRepeats);
    const int id = records.field("of_task");
    const RepeatColumns columns(records);
    for (; !records.atEnd(); records.moveNext()) {
        if (auto repeat = columns.read(records)) {
            repeats.emplace(records.int32(id), std::move(*repeat));
        }
    }
    connection.close();
    return repeats;
}

std::optional<Repeat> TaskRepeats::of(const DatabaseEngine& engine, qint32 id)
{
    if (!isAny(engine)) {
        return std::nullopt;
    }
    Connection connection = ClsDatabase(engine).Connect();
    connection.open();
    std::optional<Repeat> repeat = of(engine, connection, id);
    connection.close();
    return repeat;
}

std::optional<Repeat> TaskRepeats::of(const DatabaseEngine& engine, Connection& connection, qint32 id)
{
    if (!isAny(engine)) {
        return std::nullopt;
    }
    const RecordSet records =
        connection.execute(SelectRepeats + QLatin1String(" where of_task = ") + QString::number(id));
    return records.atEnd() ? std::nullopt : RepeatColumns(records).read(records);
}

void TaskRepeats::store(const DatabaseEngine& engine, Connection& connection, qint32 id, const Repeat& repeat)
{
    if (engine.repeating->isUsed() != true && !hasTable(connection, "repeats")) {
        throw RuntimeError(QCoreApplication::translate("TaskRepeats",
            "Tasks cannot repeat in this data file, which is of an earlier version and could not be "
            "upgraded. The next start of Ambertask tries it again."));
    }
    connection.execute(
        QStringLiteral("insert or replace into repeats(of_task,rule,first_moment,lead,done) values(%1)")
            .arg(sqlRepeat(id, repeat)));
    engine.repeating->setUsed(true);
}

void TaskRepeats::remove(Connection& connection, qint32 id)
{
    connection.execute(QLatin1String("delete from repeats where of_task = ") + QString::number(id));
}

void TaskRepeats::set(
    const DatabaseEngine& engine, Connection& connection, qint32 id, const std::optional<Repeat>& repeat)
{
    if (repeat && engine.repeating != nullptr) {
        store(engine, connection, id, *repeat);
    } else if (isAny(engine)) {
        remove(connection, id);
    }
}

int TaskRepeats::missed(const Repeat& repeat, Moment reminder, Moment now)
{
    return now < reminder
        ? 0
        : 1 + RepeatRules::count(repeat, reminder + repeat.lead, now + repeat.lead, MostMissed - 1);
}

RepeatColumns::RepeatColumns(const RecordSet& records)
    : m_rule(records.field("rule")), m_first(records.field("first_moment")), m_lead(records.field("lead")),
      m_done(records.field("done"))
{
}

std::optional<Repeat> RepeatColumns::read(const RecordSet& records) const
{
    try {
        return Repeat{std::string(records.utf8(m_rule)), records.moment(m_first),
            std::chrono::minutes(records.int32(m_lead)), records.int32(m_done)};
    } catch (const RuntimeError&) {
        return std::nullopt;
    }
}
