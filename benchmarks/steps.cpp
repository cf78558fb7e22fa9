// A full house: how long the windows stand still at each thing that a user does.
#include "app/TasksPage.h"
#include "app/UndoBar.h"
#include "data/DataFileCopies.h"
#include "data/TaskCodes.h"
#include "reminders/frmAlerts.h"
#include "report/PreviewWindow.h"
#include "settings/MaintenancePage.h"
#include "support/Bench.h"
#include "support/BenchProgram.h"
#include "support/LongestStep.h"
#include "tasks/frmTaskDetails.h"

#include <QComboBox>
#include <QDateEdit>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <algorithm>

namespace
{

/// As many as there are ids.
constexpr int Full = 32'767;
constexpr double Longest = 150; // ms
constexpr int Repetitions = 9;

/// The program on a file of its own, with every window loaded. Of the tasks `due` remind.
struct House {
    explicit House(int tasks, int due = 0, int repeating = 0)
        : file({tasks, 0, due, repeating}), shown(file, [](ReportHost& host) {
              return std::make_unique<PreviewWindow>(host, [] { return false; });
          })
    {
    }

    frmMain& main() { return shown.program.mainWindow(); }
    void press(QWidget& window, const char* name)
    {
        BenchProgram::control<QPushButton>(window, name)->click();
        QCoreApplication::processEvents();
    }
    void choose(const char* name, qint32 number)
    {
        auto* combo = BenchProgram::control<QComboBox>(main(), name);
        combo->setCurrentIndex(combo->findData(number));
        emit combo->activated(combo->currentIndex());
        QCoreApplication::processEvents();
    }

    TaskFile file;
    BenchProgram shown;
};

class Steps
{
public:
    explicit Steps(Bench& bench) : m_bench(bench), m_tasks(bench.size(Full, 50)) { }

    void lists()
    {
        // With room for the tasks that are saved.
        House house(m_tasks - Repetitions);
        const auto sorted = [&](const QString& how, qint32 sortBy) {
            tell(QStringLiteral("the list, ") + how,
                m_bench.median(Repetitions, [&] { house.choose("cmbSort", sortBy); }));
        };
        sorted(QStringLiteral("no order"), TaskSort::None);
        sorted(QStringLiteral("by name"), TaskSort::Name);
        sorted(QStringLiteral("by status"), TaskSort::Status);
        sorted(QStringLiteral("by due date"), TaskSort::DueDate);
        sorted(QStringLiteral("by priority"), TaskSort::Periority);
        // Sorted by the slowest order, for everything that follows loads the list.
        house.choose("cmbSort", TaskSort::DueDate);
        tell(QStringLiteral("saved settings, the list by due date"),
            m_bench.median(Repetitions, [&] { house.press(house.main(), "btnSave"); }));
        saveTask(house);
        deleteTask(house);
        tell(QStringLiteral("longest step of the lists after a restore"), longestStep([&](LongestStep& step) {
            step.watchEvents();
            emit house.main().findChild<MaintenancePage*>()->dataRestored();
            QCoreApplication::processEvents();
        }));
    }

    void firstChange()
    {
        const TaskFile file({m_tasks});
        DatabaseEngine engine = file.engine();
        bool isSound = false;
        engine.knownSound = &isSound;
        tell(QStringLiteral("the first change after a start"), m_bench.median(Repetitions, [&] {
            isSound = false;
            ClsTask(engine).DeleteById(1);
        }));
    }

    void reminders()
    {
        House house(m_tasks, m_tasks);
        frmAlerts& alerts = house.shown.program.alerts();
        const auto tick = [&] {
            alerts.tmrTasksChecker_Timer();
            QCoreApplication::processEvents();
        };
        const auto forget = [&] {
            alerts.forgetReminders();
            house.file.run(QStringLiteral("update tasks set played=0,dismissed=0,reminder_on=1"));
        };
        tell(QStringLiteral("a tick, all due, listed and marked"), timesOf(forget, tick));
        tell(QStringLiteral("a tick, all due and listed"), m_bench.median(Repetitions, tick));
        const auto selectFirst = [&] {
            BenchProgram::control<GridView>(alerts, "grdTasks")->selectOnly(0);
        };
        tell(QStringLiteral("one of all dismissed, with the list"),
            timesOf(selectFirst, [&] { house.press(alerts, "btnDismiss"); }));
        const auto listAgain = [&] {
            forget();
            tick();
        };
        tell(QStringLiteral("all dismissed, with the list"),
            timesOf(listAgain, [&] { house.press(alerts, "btnDismissAll"); }));
    }

    void repeating()
    {
        const int some = m_bench.size(5000, 10);
        House house(m_tasks, some, some);
        tell(QStringLiteral("the list, of which 5,000 repeat"),
            m_bench.median(Repetitions, [&] { house.choose("cmbSort", TaskSort::None); }));
        frmAlerts& alerts = house.shown.program.alerts();
        const auto tick = [&] {
            alerts.tmrTasksChecker_Timer();
            QCoreApplication::processEvents();
        };
        tick();
        tell(QStringLiteral("a tick, 5,000 due and listed that repeat"), m_bench.median(Repetitions, tick));
        const auto listAgain = [&] {
            house.file.run(QStringLiteral("update tasks set task_due_date='2026-01-14 10:00:00',"
                                          "reminder_date_time='2026-01-14 09:00:00' where task_id in "
                                          "(select of_task from repeats)"));
            tick();
        };
        tell(QStringLiteral("5,000 that repeat dismissed, with the list"),
            timesOf(listAgain, [&] { house.press(alerts, "btnDismissAll"); }));
        tell(QStringLiteral("a tick, nothing due, 5,000 repeat"), m_bench.median(Repetitions, tick));
    }

    void deletions()
    {
        std::vector<double> bulk;
        std::vector<double> back;
        std::vector<double> category;
        for (int i = 0; i < m_bench.size(Repetitions, 1); ++i) {
            House house(m_tasks);
            for (const char* name : {"dtpDateFromMaintenance", "dtpDateToMaintenance"}) {
                BenchProgram::control<QDateEdit>(house.main(), name)
                    ->setDate(QDate(name == std::string_view("dtpDateFromMaintenance") ? 2000 : 2999, 1, 1));
            }
            house.shown.dialogs.expectAsk(
                QStringLiteral("Are you sure you want to delete %1 tasks?").arg(m_tasks), true);
            bulk.push_back(millisecondsOf([&] { house.press(house.main(), "btnDeleteTasksMaintenance"); }));
            back.push_back(millisecondsOf([&] { house.main().tasksPage()->undoBar().undo(); }));
            House other(m_tasks);
            auto* list = BenchProgram::control<QListWidget>(other.main(), "lstViewCategories");
            list->setCurrentRow(0);
            other.shown.dialogs.expectAsk(QStringLiteral("Are you sure you want to delete '%1' category, all "
                                                         "tasks under this category will be deleted?")
                                              .arg(list->item(0)->text()),
                true);
            category.push_back(millisecondsOf([&] { other.press(other.main(), "btnDeleteCat"); }));
        }
        tell(QStringLiteral("all deleted in bulk, with count and list"), medianOf(bulk));
        tell(QStringLiteral("all that was deleted in bulk taken back, with the list"), medianOf(back));
        tell(QStringLiteral("a category with a third of them deleted, with the list"), medianOf(category));
    }

    void report()
    {
        House house(m_tasks);
        house.choose("cmbSort", TaskSort::DueDate);
        tell(QStringLiteral("longest step of the report by due date, to its first page"),
            longestStep([&](LongestStep& step) {
                step.watchEvents();
                house.press(house.main(), "btnTaskPrint");
            }));
    }

    void copies()
    {
        const TaskFile file({m_tasks});
        const DataFileCopies copies(file.engine());
        const QString backup = file.folder() + QStringLiteral("/backup.abk");
        tell(QStringLiteral("longest step of a backup"),
            longestStep([&](Progress& progress) { copies.backUpTo(backup, &progress); }));
        tell(QStringLiteral("longest step of a restore"),
            longestStep([&](Progress& progress) { copies.restoreFrom(backup, &progress); }));
    }

private:
    double longestStep(const std::function<void(LongestStep&)>& operation) const
    {
        std::vector<double> longest;
        for (int i = 0; i < m_bench.size(Repetitions, 1); ++i) {
            LongestStep step;
            operation(step);
            longest.push_back(step.milliseconds());
        }
        return medianOf(longest);
    }
    static double medianOf(std::vector<double> values)
    {
        std::sort(values.begin(), values.end());
        return values[values.size() / 2];
    }
    static double millisecondsOf(const Bench::Action& action)
    {
        const double before = cpuSeconds();
        action();
        return (cpuSeconds() - before) * 1000;
    }
    /// The median time of `action`; `preparation` runs before each and is not counted.
    double timesOf(const Bench::Action& preparation, const Bench::Action& action) const
    {
        std::vector<double> taken;
        for (int i = 0; i < m_bench.size(Repetitions, 1); ++i) {
            preparation();
            taken.push_back(millisecondsOf(action));
        }
        return medianOf(taken);
    }
    void saveTask(House& house)
    {
        const auto fill = [&] {
            house.press(house.main(), "btnTaskAdd");
            frmTaskDetails& dialog = house.shown.program.taskDetails();
            BenchProgram::control<QLineEdit>(dialog, "txtTask")->setText(QStringLiteral("Call the dentist"));
            BenchProgram::control<QComboBox>(dialog, "cmbCategories")->setCurrentIndex(0);
        };
        tell(QStringLiteral("a saved task, with the list by due date"),
            timesOf(fill, [&] { house.press(house.shown.program.taskDetails(), "btnOk"); }));
    }
    void deleteTask(House& house)
    {
        const auto select = [&] {
            house.shown.list()->selectOnly(m_tasks / 2);
            house.shown.dialogs.expectAsk(QStringLiteral("Are you sure you want to delete this task?"), true);
        };
        tell(QStringLiteral("a deleted task"),
            timesOf(select, [&] { house.press(house.main(), "btnTaskDelete"); }));
    }
    void tell(const QString& what, double milliseconds)
    {
        m_bench.value(QStringLiteral("32,767 tasks: ") + what, milliseconds, Longest, QStringLiteral("ms"));
    }

    Bench& m_bench;
    int m_tasks;
};

} // namespace

int main(int argc, char** argv)
{
    const QApplication application(argc, argv);
    QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    Bench bench(argc, argv);
    Steps steps(bench);
    steps.lists();
    steps.firstChange();
    steps.reminders();
    steps.repeating();
    steps.deletions();
    steps.report();
    steps.copies();
    return 0;
}
