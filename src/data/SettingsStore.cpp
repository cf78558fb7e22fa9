#include "data/SettingsStore.h"

#include "data/ClsDatabase.h"
#include "data/RecordReading.h"
#include "data/SqlText.h"

namespace
{

QString insertStatement(const SettingsRecord& settings)
{
    return fillMarkers(
        u"insert into settings([always_on_top],[start_with_windows],"
        u"[minimize_on_start],[skin],[show_task_status],[show_task_due_date],[show_task_periority],"
        u"[show_task_reminder],[show_today_tasks],[show_grid],[show_ballon_icon]) "
        u"values(<always_on_top/>,<start_with_windows/>,"
        u"<minimize_on_start/>,'<skin/>',<task_status/>,<task_due_date/>,<task_periority/>,<task_reminder/>,"
        u"<show_today_tasks/>,<show_grid/>,<show_ballon_icon/>)",
        {{u"<always_on_top/>", sqlFlag(settings.always_on_top)},
            {u"<start_with_windows/>", sqlFlag(settings.start_with_windows)},
            {u"<minimize_on_start/>", sqlFlag(settings.minimize_on_start)}, {u"<skin/>", settings.skin},
            {u"<task_status/>", sqlFlag(settings.show_task_status)},
            {u"<task_due_date/>", sqlFlag(settings.show_task_due_date)},
            {u"<task_periority/>", sqlFlag(settings.show_task_periority)},
            {u"<task_reminder/>", sqlFlag(settings.show_task_reminder)},
            {u"<show_today_tasks/>", sqlFlag(settings.show_today_tasks)},
            {u"<show_grid/>", sqlFlag(settings.show_grid)},
            {u"<show_ballon_icon/>", sqlFlag(settings.show_ballon_icon)}});
}

} // namespace

SettingsRecord SettingsStore::read() const
{
    Connection connection = ClsDatabase(*m_engine).Connect();
    connection.open();
    const RecordSet rows = connection.execute(QStringLiteral("select * from settings"));
    if (rows.atEnd()) {
        throw DatabaseError(DatabaseError::Kind::Conversion,
            tr("The row of the table \"settings\" is missing in the data file."));
    }
    SettingsRecord settings = SettingsRecord::shipped();
    const auto read = [&](const QString& column, auto convert) {
        const int field = rows.field(column.toStdString());
        readOrLeaveOut(*m_engine, [&] {
            try {
                convert(field);
            } catch (const DatabaseError& error) {
                throw UnreadableRecordError({QStringLiteral("settings"), column, {}, error.text()});
            }
        });
    };
    const auto readFlag = [&](const QString& column, bool& flag) {
        read(column, [&](int field) { flag = rows.flag(field); });
    };
    read(QStringLiteral("skin"), [&](int field) { settings.skin = rows.text(field); });
    readFlag(QStringLiteral("always_on_top"), settings.always_on_top);
    readFlag(QStringLiteral("minimize_on_start"), settings.minimize_on_start);
    readFlag(QStringLiteral("show_grid"), settings.show_grid);
    readFlag(QStringLiteral("show_task_due_date"), settings.show_task_due_date);
    readFlag(QStringLiteral("show_task_periority"), settings.show_task_periority);
    readFlag(QStringLiteral("show_task_reminder"), settings.show_task_reminder);
    readFlag(QStringLiteral("show_task_status"), settings.show_task_status);
    readFlag(QStringLiteral("show_today_tasks"), settings.show_today_tasks);
    readFlag(QStringLiteral("show_ballon_icon"), settings.show_ballon_icon);
    readFlag(QStringLiteral("start_with_windows"), settings.start_with_windows);
    connection.close();
    return settings;
}

void SettingsStore::save(const SettingsRecord& settings, SettingsRecord& record) const
{
    Connection connection = ClsDatabase(*m_engine).Connect();
    connection.open();
    connection.execute(QStringLiteral("delete from settings"));
    connection.execute(insertStatement(settings));
    // Before `record` is changed: it may hold only what is on the disk.
    connection.commit();
    record = settings;
    connection.close();
}
