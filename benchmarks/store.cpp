// What happens every ten seconds, and at the OK of the task dialog.
#include "data/ClsTask.h"
#include "data/ReminderChecker.h"
#include "limits/BareEngine.h"
#include "support/Bench.h"
#include "support/TaskFile.h"

#include <QCoreApplication>
#include <QLocale>
#include <QStringList>
#include <dlfcn.h>

namespace
{

int flushes = 0;

const QString Due = QStringLiteral("select * from tasks,categories  where tasks.cat_id=categories.cat_id and "
                                   "reminder_date_time <= now() and dismissed =0 and reminder_on=true");
const QString MarkPlayed = QStringLiteral(
    "update  tasks set played=1 where reminder_date_time <= now() and dismissed =0 and reminder_on=true");
const QString Insert = QStringLiteral(
    "insert into tasks(task_name,task_desc,task_status,cat_id,task_due_date,task_periority,reminder_on,"
    "reminder_date_time,reminder_sound,reminder_file) values('Call the dentist','About the "
    "tooth',0,1,'2026-01-16 10:00:00',1,0,'2026-01-16 10:00:00','','')");

QString count(int tasks)
{
    return QLocale(QLocale::English).toString(tasks);
}

QString nowText()
{
    return QString::fromStdString(storedText(TaskFile::now()));
}

void tick(const TaskFile& file)
{
    ReminderChecker checker(file.engine());
    checker.close();
}

void benchTick(Bench& bench)
{
    const TaskFile few({10});
    const TaskFile some({bench.size(10'000, 100)});
    const int many = bench.size(32'767, 1000);
    const TaskFile most({many});
    const int ticks = bench.size(100, 1);
    const auto ticksOn = [&](const TaskFile& file) {
        return [&file, ticks] {
            for (int i = 0; i < ticks; ++i) {
                tick(file);
            }
        };
    };
    const auto scansOn = [&](const TaskFile& file) {
        return [&file, ticks] {
            for (int i = 0; i < ticks; ++i) {
                bareScan(file.path(), Due, nowText());
            }
        };
    };
    const auto each = [ticks](Bench::Medians medians) {
        return Bench::Medians{medians.ours / ticks, medians.reference / ticks};
    };
    bench.ratio(QStringLiteral("A tick, nothing due, 10,000 tasks; the same with 10"),
        each(bench.alternate(9, ticksOn(some), ticksOn(few))), 1.5);
    bench.ratio(QStringLiteral("A tick, nothing due, %1 tasks; the same with 10").arg(count(many)),
        each(bench.alternate(9, ticksOn(most), ticksOn(few))), 1.5);
    bench.ratio(QStringLiteral("A tick, nothing due, %1 tasks; bare statement").arg(count(many)),
        each(bench.alternate(9, ticksOn(most), scansOn(most))), {});
}

void benchDue(Bench& bench, int due)
{
    const TaskFile ours({bench.size(10'000, 100), 0, due});
    const TaskFile bare({bench.size(10'000, 100), 0, due});
    const auto tickWithMarks = [&] {
        ReminderChecker checker(ours.engine());
        checker.markPlayed();
        checker.close();
    };
    const auto statements = [&] {
        bareScan(bare.path(), Due, nowText());
        bareWrite(bare.path(), {MarkPlayed}, nowText());
    };
    bench.ratio(QStringLiteral("A tick with %1 due, listed and marked; bare statements").arg(count(due)),
        bench.alternate(21, tickWithMarks, statements), 3);
}

void save(const TaskFile& file)
{
    const Moment due = TaskFile::now() + std::chrono::days(1);
    ClsTask task(file.engine());
    task.setTaskName(QStringLiteral("Call the dentist"));
    task.setDescription(QStringLiteral("About the tooth"));
    task.setCategoryId(1);
    task.setPeriority(1);
    task.setDueDateTime(due);
    task.setReminderDateTime(due);
    task.Add();
}

void benchSaving(Bench& bench)
{
    const TaskFile ours({bench.size(1000, 10)});
    const TaskFile bare({bench.size(1000, 10)});
    const int times = bench.size(20, 1);
    const auto repeated = [times](const auto& action) {
        return [times, action] {
            for (int i = 0; i < times; ++i) {
                action();
            }
        };
    };
    Bench::Medians medians = bench.alternate(
        15, repeated([&] { save(ours); }), repeated([&] { bareWrite(bare.path(), {Insert}); }));
    bench.ratio(QStringLiteral("One saved task; one insert on a fresh connection"),
        {medians.ours / times, medians.reference / times}, 1.1);

    flushes = 0;
    save(ours);
    const int oursFlushes = flushes;
    flushes = 0;
    bareWrite(bare.path(), {Insert});
    bench.ratio(QStringLiteral("One saved task, flushes to the disk; one insert"),
        {static_cast<double>(oursFlushes), static_cast<double>(flushes)}, 1, QString());
}

} // namespace

// Stands in for the C library's calls that SQLite makes: counts flushes, and makes them.
extern "C" int fsync(int file)
{
    ++flushes;
    static const auto real = reinterpret_cast<int (*)(int)>(dlsym(RTLD_NEXT, "fsync"));
    return real(file);
}

extern "C" int fdatasync(int file)
{
    ++flushes;
    static const auto real = reinterpret_cast<int (*)(int)>(dlsym(RTLD_NEXT, "fdatasync"));
    return real(file);
}

int main(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    Bench bench(argc, argv);
    benchTick(bench);
    benchDue(bench, bench.size(100, 10));
    benchDue(bench, bench.size(1000, 20));
    benchSaving(bench);
    return 0;
}
