// The task list: reading, showing, filtering, scrolling, and the memory that it takes.
#include "data/ClsDatabase.h"
#include "data/TaskFilter.h"
#include "data/TaskRows.h"
#include "limits/BareEngine.h"
#include "support/Bench.h"
#include "support/BenchProgram.h"

#include <QApplication>
#include <QScrollBar>

namespace
{

const QString Join =
    QStringLiteral("select * from tasks inner join categories on tasks.cat_id=categories.cat_id");

QString count(int tasks)
{
    return QLocale(QLocale::English).toString(tasks);
}

void benchReading(Bench& bench, TaskFile& file, int tasks)
{
    const auto medians = bench.alternate(
        11, [&] { TaskFilter().tasks(file.engine()); }, [&] { bareScan(file.path(), Join); });
    bench.ratio(QStringLiteral("GetTasks, all of %1 tasks; bare scan").arg(count(tasks)), medians, 1.15);
}

/// The time of the list by name without the readers' order: SQLite's order of the same tasks, as records.
void readInOrderOfTheEngine(const TaskFile& file)
{
    Connection connection = ClsDatabase(file.engine()).Connect();
    connection.open();
    RecordSet records = connection.execute(Join + QStringLiteral(" order by task_name"));
    TaskRows rows(file.engine(), records);
    std::vector<ClsTask> tasks;
    for (; !records.atEnd(); records.moveNext()) {
        rows.read(records, tasks.emplace_back(file.engine()));
    }
    connection.close();
}

void benchNames(Bench& bench)
{
    const int tasks = bench.size(10'000, 200);
    TaskFile file({tasks});
    // Unsorted; one in eight with a letter beyond ASCII, every second one with a number.
    file.run(QStringLiteral(
        "update tasks set task_name = substr(printf('%08X', task_id*2654435761%4294967296),1,5)"
        "||case task_id%8 when 0 then ' \u00e4\u00df' else ' of the list' end"
        "||case task_id%2 when 0 then ' '||(task_id%977) else ' once more' end"));
    TaskFilter byName;
    byName.sortBy = TaskSort::Name;
    const auto medians = bench.alternate(
        15, [&] { byName.tasks(file.engine()); }, [&] { readInOrderOfTheEngine(file); });
    bench.ratio(
        QStringLiteral("GetTasks by name, %1 tasks; in the engine's order").arg(count(tasks)), medians, 2);
}

void benchFilter(
    Bench& bench, TaskFile& file, const QString& name, const TaskFilter& filter, const QString& where)
{
    const QString now = QString::fromStdString(storedText(TaskFile::now()));
    const auto medians = bench.alternate(
        9, [&] { filter.tasks(file.engine()); }, [&] { bareScan(file.path(), Join + where, now); });
    bench.ratio(QStringLiteral("GetTasks, %1, keeps %2; bare scan of the statement")
                    .arg(name, count(static_cast<int>(filter.tasks(file.engine()).size()))),
        medians, 1.3);
}

void benchFilters(Bench& bench, TaskFile& file)
{
    TaskFilter category;
    category.category = TaskFile::RareCategory;
    benchFilter(
        bench, file, QStringLiteral("one category"), category, QStringLiteral(" where categories.cat_id= 4"));
    TaskFilter status;
    status.status = TaskStatus::Deferred;
    benchFilter(bench, file, QStringLiteral("one status"), status, QStringLiteral(" where task_status = 4"));
    TaskFilter day;
    day.isDateRange = true;
    day.fromDate = day.toDate = startOfDay(TaskFile::now());
    benchFilter(bench, file, QStringLiteral("one day"), day,
        QStringLiteral(
            " where task_due_date >= '2026-01-15 00:00:00' and task_due_date <= '2026-01-15 23:59:00' "));
    TaskFilter expired = status;
    expired.taskType = TaskType::Expired;
    benchFilter(bench, file, QStringLiteral("one status, expired"), expired,
        QStringLiteral(" where task_status = 4 and task_due_date  <now()"));
}

void showWhole(BenchProgram& shown)
{
    shown.program.mainWindow().LoadTasks();
    shown.list()->viewport()->repaint();
    QCoreApplication::processEvents();
}

void benchShowing(Bench& bench, TaskFile& file, int tasks)
{
    BenchProgram shown(file);
    const auto medians = bench.alternate(
        9, [&] { showWhole(shown); }, [&] { bareScan(file.path(), Join); });
    bench.ratio(QStringLiteral("List on screen after a filter change, %1 tasks; bare scan").arg(count(tasks)),
        medians, 1.3);
}

void benchMemory(Bench& bench, TaskFile& file, int tasks)
{
    TaskFile empty({});
    double before = 0;
    double after = 0;
    {
        BenchProgram shown(empty);
        showWhole(shown);
        returnFreedMemory();
        before = anonymousBytes();
        file.run(QStringLiteral("vacuum into '%1'").arg(empty.path() + QStringLiteral(".full")));
        QFile::remove(empty.path());
        QFile::rename(empty.path() + QStringLiteral(".full"), empty.path());
        showWhole(shown);
        after = anonymousBytes();
    }
    bench.value(QStringLiteral("Memory of %1 listed tasks").arg(count(tasks)), (after - before) / 1e6, 15,
        QStringLiteral("MB"));
}

/// A list scrolled to its middle, for measuring single frames: one row on, selected or scrolled to, and
/// painted.
class FrameMaker
{
public:
    explicit FrameMaker(int tasks) : m_tasks(tasks), m_file({tasks}), m_shown(m_file) { }

    void frames(int count)
    {
        GridView* list = m_shown.list();
        for (int i = 0; i < count / 2; ++i) {
            list->selectOnly(m_tasks / 2 + i);
            list->viewport()->repaint();
        }
        for (int i = 0; i < count / 2; ++i) {
            list->verticalScrollBar()->setValue(list->verticalScrollBar()->value() - 10);
            list->viewport()->repaint();
        }
    }

private:
    int m_tasks;
    TaskFile m_file;
    BenchProgram m_shown;
};

void benchScrolling(Bench& bench)
{
    const int many = bench.size(32'767, 1000);
    const int few = bench.size(1000, 500);
    const int frames = bench.size(100, 4);
    FrameMaker ours(many);
    FrameMaker reference(few);
    const auto medians = bench.alternate(
        41, [&] { ours.frames(frames); }, [&] { reference.frames(frames); });
    bench.ratio(QStringLiteral("Scrolling and selecting, a frame, %1 tasks; the same with %2")
                    .arg(count(many), count(few)),
        {medians.ours / frames, medians.reference / frames}, 1.05);
}

} // namespace

int main(int argc, char** argv)
{
    const QApplication application(argc, argv);
    QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    Bench bench(argc, argv);
    const int tasks = bench.size(32'767, 1000);
    TaskFile file({tasks, 50});
    benchReading(bench, file, tasks);
    benchFilters(bench, file);
    benchNames(bench);
    benchShowing(bench, file, tasks);
    benchMemory(bench, file, tasks);
    benchScrolling(bench);
    return 0;
}
