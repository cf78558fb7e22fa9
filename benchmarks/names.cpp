// One task with an extremely long name, as another program may have written it, in a list of ordinary ones.
#include "reminders/frmAlerts.h"
#include "support/Bench.h"
#include "support/BenchProgram.h"
#include "tasks/frmTaskDetails.h"

#include <QAbstractButton>
#include <QApplication>

namespace
{

constexpr qint16 Endless = 1;
const QString Name = QStringLiteral("A name of 10 MB: ");

void paint(QWidget& window)
{
    window.repaint();
    QCoreApplication::processEvents();
}

void open(frmTaskDetails& dialog)
{
    dialog.SetTag(Endless);
    dialog.show();
    paint(dialog);
}

} // namespace

int main(int argc, char** argv)
{
    const QApplication application(argc, argv);
    QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    Bench bench(argc, argv);
    const int letters = bench.size(5'000'000, 50'000);
    TaskFile file({1000, 0, 3});
    file.nameWithoutEnd(Endless, letters);
    BenchProgram shown(file);
    frmTaskDetails& dialog = shown.program.taskDetails();
    const auto row = [&](const QString& what, const Bench::Action& action) {
        bench.value(
            QStringLiteral("A name of 10 MB: ") + what, bench.median(9, action), 200, QStringLiteral("ms"));
    };
    row(QStringLiteral("the list read and painted"), [&] {
        shown.program.mainWindow().LoadTasks();
        paint(shown.program.mainWindow());
    });
    row(QStringLiteral("the task opened"), [&] { open(dialog); });
    const auto store = [&] {
        open(dialog);
        const double before = cpuSeconds();
        dialog.findChild<QAbstractButton*>(QStringLiteral("btnOk"))->click();
        paint(shown.program.mainWindow());
        return (cpuSeconds() - before) * 1000;
    };
    bench.value(Name + QStringLiteral("stored by OK"),
        bench.alternateValues(9, store, [] { return 0.0; }).ours, 200, QStringLiteral("ms"));
    frmAlerts& alert = shown.program.alerts();
    row(QStringLiteral("the alert that lists it"), [&] {
        alert.forgetReminders();
        alert.tmrTasksChecker_Timer();
        paint(alert);
    });
    return 0;
}
