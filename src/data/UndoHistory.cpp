#include "data/UndoHistory.h"

#include "data/ClsDatabase.h"
#include "data/RepeatRules.h"
#include "store/DatabaseError.h"

#include <set>
#include <string>

namespace
{

/// The columns that the program keeps up by itself: whether a reminder has sounded, and where a category's
/// picture lies in the image list.
const std::set<std::string>& ownColumns()
{
    static const std::set<std::string> columns{"played", "cat_icon"};
    return columns;
}

/// Tasks without a category, which no list shows.
qint32 strayTasks(Connection& connection)
{
    return connection
        .execute(
            QStringLiteral("select count(*) from tasks where cat_id not in (select cat_id from categories)"))
        .int32(0);
}

/// The newest of the categories that share a name, for each such name.
QList<qint32> newestOfAName(Connection& connection)
{
    QList<qint32> ids;
    for (RecordSet records = connection.execute(
             QStringLiteral("select max(cat_id) from categories group by cat_name having count(*)>1"));
         !records.atEnd(); records.moveNext()) {
        ids.append(records.int32(0));
    }
    return ids;
}

/// The category takes in the tasks of the others of its name, and those go.
void takeInOthersOfItsName(Connection& connection, qint32 category)
{
    const QString others =
        QStringLiteral("where cat_name=(select cat_name from categories where cat_id=%1) and cat_id<>%1")
            .arg(category);
    connection.execute(
        QStringLiteral("update tasks set cat_id=%1 where cat_id in (select cat_id from categories %2)")
            .arg(QString::number(category), others));
    connection.execute(QLatin1String("delete from categories ") + others);
}

/// What has been added since stands in no row of `changes`: a category that comes back where another of its
/// name has been made gives its tasks to that one. Throws ChangedSinceError when tasks would lose theirs.
void applyToAll(Connection& connection, const ChangeSet& changes)
{
    connection.beginWriting();
    const qint32 strayBefore = strayTasks(connection);
    const QList<qint32> newestBefore = newestOfAName(connection);
    connection.apply(changes, ownColumns());
    if (strayTasks(connection) > strayBefore) {
        throw ChangedSinceError(UndoHistory::tr("It would leave tasks without a category."));
    }
    for (const qint32 category : newestOfAName(connection)) {
        if (!newestBefore.contains(category)) {
            takeInOthersOfItsName(connection, category);
        }
    }
}

} // namespace

UndoHistory::UndoHistory(const DatabaseEngine& engine, QObject* parent) : QObject(parent), m_engine(&engine)
{
}

void UndoHistory::run(const std::function<QString(const DatabaseEngine&)>& change)
{
    DatabaseEngine recorded = *m_engine;
    Step step;
    recorded.changes = &step.changes;
    step.done = change(recorded);
    if (step.changes.isEmpty()) {
        return;
    }
    m_steps.resize(m_next);
    if (m_steps.size() == MostSteps) {
        m_steps.erase(m_steps.begin());
    }
    m_steps.push_back(std::move(step));
    m_next = m_steps.size();
    emit stepsChanged();
}

QString UndoHistory::undoText() const
{
    return canUndo() ? m_steps[m_next - 1].done : QString();
}

QString UndoHistory::redoText() const
{
    return canRedo() ? m_steps[m_next].done : QString();
}

void UndoHistory::undo()
{
    if (canUndo()) {
        const std::size_t step = m_next - 1;
        apply(step, m_steps[step].changes.inverted(), step);
    }
}

void UndoHistory::redo()
{
    if (canRedo()) {
        apply(m_next, m_steps[m_next].changes, m_next + 1);
    }
}

void UndoHistory::clear()
{
    m_steps.clear();
    m_next = 0;
    emit stepsChanged();
}

void UndoHistory::apply(std::size_t step, const ChangeSet& changes, std::size_t nextAfterwards)
{
    Connection connection = ClsDatabase(*m_engine).Connect();
    connection.open();
    try {
        applyToAll(connection, changes);
    } catch (const ChangedSinceError&) {
        connection.abandon();
        m_steps.erase(m_steps.begin() + static_cast<std::ptrdiff_t>(step));
        m_next = step;
        emit stepsChanged();
        throw;
    } catch (...) {
        connection.abandon();
        throw;
    }
    connection.close();
    if (m_engine->repeating != nullptr && changes.tables().count("repeats") > 0) {
        m_engine->repeating->setUsed(true);
    }
    m_next = nextAfterwards;
    emit stepsChanged();
    emit dataChanged();
}
