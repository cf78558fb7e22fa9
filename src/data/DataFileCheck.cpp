#include "data/DataFileCheck.h"

#include "data/ClsCategory.h"
#include "data/ClsDatabase.h"
#include "data/ClsTask.h"
#include "data/DataFileRoad.h"
#include "store/Connection.h"
#include "system/FileReplace.h"

#include <QCoreApplication>
#include <array>

namespace
{

constexpr std::array SettingsFlags{"always_on_top", "start_with_windows", "minimize_on_start",
    "show_task_status", "show_task_due_date", "show_task_periority", "show_task_reminder", "show_today_tasks",
    "show_grid", "show_ballon_icon"};
/// A numeric column would not return this text unchanged.
const QLatin1String Probe("007");

void require(bool condition)
{
    if (!condition) {
        throw FileError(QCoreApplication::translate("DataFileCopies", "The file is damaged."));
    }
}

/// A connection that never commits what it writes.
class Trial
{
public:
    explicit Trial(const DatabaseEngine& engine) : m_connection(ClsDatabase(engine).Connect())
    {
        m_connection.open();
    }
    ~Trial() { m_connection.abandon(); }
    Trial(const Trial&) = delete;
    Trial& operator=(const Trial&) = delete;

    RecordSet execute(const char* statement) { return m_connection.execute(QLatin1String(statement)); }

private:
    Connection m_connection;
};

void requireOk(const RecordSet& verdict)
{
    require(!verdict.atEnd() && verdict.text(0) == QLatin1String("ok"));
}

void requireReadableSettings(Trial& trial)
{
    // A file without that row will do: a restore writes the present settings.
    for (RecordSet row = trial.execute("select * from settings"); !row.atEnd(); row.moveNext()) {
        row.text(row.field("skin"));
        for (const char* flag : SettingsFlags) {
            row.flag(row.field(flag));
        }
    }
}

/// Checks that the file is sound and every record can be read; returns the number of tasks.
qint64 requireSoundAndReadable(const DatabaseEngine& engine)
{
    Trial trial(engine);
    requireOk(trial.execute("pragma integrity_check"));
    requireReadableSettings(trial);
    // Checks the columns that the reminders use and the collation of names; needs no row.
    trial.execute(
        "select played,dismissed from tasks,categories where tasks.cat_id=categories.cat_id limit 0");
    trial.execute("select task_id from tasks order by task_name limit 0");
    ClsCategory(engine).GetAllCategories();
    return ClsTask(engine).readAll();
}

void requireRoomForCategories(Trial& trial)
{
    trial.execute("insert into categories(cat_name,cat_desc,cat_icon,custom_icon,cat_icon_name) "
                  "values('007','007',7,1,'007')");
    const RecordSet added = trial.execute(
        "select * from categories where cat_id=(select max(cat_id) from categories) and cat_name = '007'");
    require(!added.atEnd() && added.int16(added.field("cat_id")) > 0
        && added.int16(added.field("cat_icon")) == 7 && added.flag(added.field("custom_icon")));
    for (const char* text : {"cat_name", "cat_desc", "cat_icon_name"}) {
        require(added.text(added.field(text)) == Probe);
    }
}

void requireRoomForTasks(Trial& trial)
{
    trial.execute("insert into tasks(task_name,task_desc,task_status,cat_id,task_due_date,task_periority,"
                  "reminder_on,reminder_date_time,reminder_sound,reminder_file) "
                  "values('007','007',3,7,#1/31/2007 23:59#,2,1,#1/1/2007 00:01#,'007','007')");
    const RecordSet added =
        trial.execute("select * from tasks where task_id=(select max(task_id) from tasks)");
    require(!added.atEnd() && added.int32(added.field("task_id")) > 0);
    for (const char* text : {"task_name", "task_desc", "reminder_sound", "reminder_file"}) {
        require(added.text(added.field(text)) == Probe);
    }
    require(added.int32(added.field("task_status")) == 3 && added.int32(added.field("cat_id")) == 7
        && added.int32(added.field("task_periority")) == 2);
    // A reminder that counts as played from the start would never sound.
    require(added.flag(added.field("reminder_on")) && !added.flag(added.field("played"))
        && !added.flag(added.field("dismissed")));
    require(storedText(added.moment(added.field("task_due_date"))) == "2007-01-31 23:59:00"
        && storedText(added.moment(added.field("reminder_date_time"))) == "2007-01-01 00:01:00");
}

void requireRoomForSettings(Trial& trial)
{
    trial.execute("delete from settings");
    trial.execute("insert into settings([always_on_top],[start_with_windows],[minimize_on_start],[skin],"
                  "[show_task_status],[show_task_due_date],[show_task_periority],[show_task_reminder],"
                  "[show_today_tasks],[show_grid],[show_ballon_icon]) values(1,1,1,'007',1,1,1,1,1,1,1)");
    const RecordSet row = trial.execute("select * from settings");
    require(!row.atEnd() && row.text(row.field("skin")) == Probe);
    for (const char* flag : SettingsFlags) {
        require(row.flag(row.field(flag)));
    }
}

void requireReadableOrigins(Trial& trial)
{
    RecordSet rows = trial.execute("select of_task,uid,properties from task_origins");
    for (; !rows.atEnd(); rows.moveNext()) {
        rows.utf8(rows.field("uid"));
        rows.utf8(rows.field("properties"));
    }
}

void requireRoomForOrigins(Trial& trial)
{
    trial.execute("delete from task_origins where of_task=7");
    trial.execute("insert into task_origins(of_task,uid,properties) values(7,'007','007')");
    const RecordSet added = trial.execute("select * from task_origins where of_task=7");
    require(!added.atEnd() && added.text(added.field("uid")) == Probe
        && added.text(added.field("properties")) == Probe);
}

void requireReadableRepeats(Trial& trial)
{
    RecordSet rows = trial.execute("select of_task,rule,first_moment,lead,done from repeats");
    for (; !rows.atEnd(); rows.moveNext()) {
        rows.utf8(rows.field("rule"));
        rows.moment(rows.field("first_moment"));
        rows.int32(rows.field("lead"));
        rows.int32(rows.field("done"));
    }
}

void requireRoomForRepeats(Trial& trial)
{
    trial.execute("delete from repeats where of_task=7");
    trial.execute(
        "insert into repeats(of_task,rule,first_moment,lead,done) values(7,'007',#1/31/2007 23:59#,-7,70)");
    const RecordSet added = trial.execute("select * from repeats where of_task=7");
    require(!added.atEnd() && added.text(added.field("rule")) == Probe
        && storedText(added.moment(added.field("first_moment"))) == "2007-01-31 23:59:00"
        && added.int32(added.field("lead")) == -7 && added.int32(added.field("done")) == 70);
}

} // namespace

qint64 requireServiceableDataFile(const DatabaseEngine& engine)
{
    refuseLaterDataFile(engine);
    const qint64 tasks = requireSoundAndReadable(engine);
    Trial trial(engine);
    requireRoomForCategories(trial);
    requireRoomForTasks(trial);
    requireRoomForSettings(trial);
    const int version = trial.execute("pragma user_version").int32(0);
    if (version >= VersionWithOrigins) {
        requireReadableOrigins(trial);
        requireRoomForOrigins(trial);
    }
    if (version >= VersionWithRepeats) {
        requireReadableRepeats(trial);
        requireRoomForRepeats(trial);
    }
    return tasks;
}
