#include "data/CopyDifference.h"

#include "data/ClsDatabase.h"
#include "data/DataFileRoad.h"
#include "store/DatabaseError.h"
#include "system/FileReplace.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>

namespace
{

/// The rows of a table in the order of their ids, which are the first column, and the number of its columns.
struct Table {
    QLatin1String query;
    QLatin1String queryBeforeRepeats; ///< for a data file that has no table of repeats
    int columns;
};

const Table Tasks{
    QLatin1String("select task_id,task_name,task_desc,task_status,cat_id,task_due_date,task_periority,"
                  "reminder_on,reminder_date_time,reminder_sound,reminder_file,dismissed,"
                  "rule,first_moment,lead,done from tasks left join repeats on task_id=of_task "
                  "order by task_id"),
    QLatin1String("select task_id,task_name,task_desc,task_status,cat_id,task_due_date,task_periority,"
                  "reminder_on,reminder_date_time,reminder_sound,reminder_file,dismissed,"
                  "null,null,null,null from tasks order by task_id"),
    16};
/// Without the place of a picture of the user's in the image list, which the program keeps up by itself.
const QLatin1String SelectCategories(
    "select cat_id,cat_name,cat_desc,custom_icon,cat_icon_name,"
    "case when custom_icon then 0 else cat_icon end from categories order by cat_id");
const Table Categories{SelectCategories, SelectCategories, 6};

/// Why the copy cannot be used.
class UnusableCopy : public RuntimeError
{
    Q_DECLARE_TR_FUNCTIONS(UnusableCopy)

public:
    using RuntimeError::RuntimeError;
    UnusableCopy() : RuntimeError(tr("The file is damaged.")) { }
};

/// Reads from the copy: what fails there is the copy's fault.
template <typename Work> auto inCopy(Work work)
{
    try {
        return work();
    } catch (const DatabaseError&) {
        throw UnusableCopy();
    }
}

DatabaseEngine readingEngine(const DatabaseEngine& engine)
{
    return {engine.programFolder, engine.clock};
}

DatabaseEngine engineOfCopy(const DatabaseEngine& engine, const QString& copy)
{
    DatabaseEngine of{QFileInfo(copy).absolutePath(), engine.clock};
    of.isImmutable = true;
    return of;
}

void requireReadable(const QString& copy)
{
    QFile file(copy);
    if (!file.open(QIODevice::ReadOnly)) {
        throw UnusableCopy(FileError(copy, FileError::reason(file)).text());
    }
}

/// Both stand on a row of the same id.
bool isSameRow(const RecordSet& now, const RecordSet& then, int columns)
{
    for (int column = 1; column < columns; ++column) {
        if (now.compare(column, then, column) != 0) {
            return false;
        }
    }
    return true;
}

RecordSet rowsOf(Connection& connection, const Table& table)
{
    return connection.execute(
        knownVersion(connection) < VersionWithRepeats ? table.queryBeforeRepeats : table.query);
}

/// Goes through both in step.
CopyDifference compare(Connection& now, Connection& then, const Table& table)
{
    CopyDifference found;
    RecordSet present = rowsOf(now, table);
    RecordSet past = inCopy([&] { return rowsOf(then, table); });
    while (!present.atEnd() || !past.atEnd()) {
        const int order = present.atEnd() ? 1 : past.atEnd() ? -1 : present.compare(0, past, 0);
        found.added += order < 0 ? 1 : 0;
        found.gone += order > 0 ? 1 : 0;
        found.changed += order == 0 && !isSameRow(present, past, table.columns) ? 1 : 0;
        if (order <= 0) {
            present.moveNext();
        }
        if (order >= 0) {
            ++found.tasks;
            inCopy([&] { past.moveNext(); });
        }
    }
    return found;
}

CopyDifference compare(Connection& now, Connection& then)
{
    inCopy([&] {
        then.open();
        knownVersion(then);
        const RecordSet verdict = then.execute(QStringLiteral("pragma quick_check"));
        if (verdict.text(0) != QLatin1String("ok")) {
            throw UnusableCopy();
        }
    });
    now.open();
    CopyDifference found = compare(now, then, Tasks);
    const CopyDifference categories = compare(now, then, Categories);
    found.hasOtherCategories = categories.added + categories.changed + categories.gone > 0;
    return found;
}

} // namespace

CopyDifference differenceFromNow(const DatabaseEngine& engine, const QString& copy)
{
    const DatabaseEngine ofNow = readingEngine(engine);
    const DatabaseEngine ofCopy = engineOfCopy(engine, copy);
    ClsDatabase past(ofCopy);
    past.setFileName(QFileInfo(copy).fileName());
    Connection now = ClsDatabase(ofNow).Connect();
    Connection then = past.Connect();
    try {
        requireReadable(copy);
        return compare(now, then);
    } catch (const UnusableCopy& error) {
        return {0, 0, 0, 0, false, error.text()};
    } catch (const LaterDataFileError& error) {
        return {0, 0, 0, 0, false, error.text()};
    }
}
