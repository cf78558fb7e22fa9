#include "SoakHands.h"

#include "data/TaskCodes.h"

#include <QCoreApplication>
#include <QEvent>
#include <QRegularExpression>
#include <algorithm>
#include <cstdio>
#include <unistd.h>
#include <utility>

using namespace std::chrono_literals;

namespace
{

/// The columns of the settings that have a box, in their order.
constexpr std::array Boxes{"chkOnTop", "chkStartWithWin", "chkMinimizeOnStart", "", "chkShowStatus",
    "chkShowDueDate", "chkShowPeriority", "chkShowReminder", "chkShowTodayTasksOnStart", "chkShowGrid",
    "chkShowBallon"};

void say(const QByteArray& line)
{
    // At once and whole: the reader is to know what had ended before the end of this process.
    const QByteArray text = line + '\n';
    if (write(STDOUT_FILENO, text.constData(), static_cast<std::size_t>(text.size())) != text.size()) {
        _exit(4);
    }
}

void startAfresh(RunningProgram& program)
{
    program.start();
    program.showAllDates();
}

/// The last tick has counted how often the listed ones have come.
QString complaintAboutTimes(RunningProgram& program, const SoakWorld& world)
{
    static const QRegularExpression number(QStringLiteral(R"( \((\d+) times since [^(]*\)$)"));
    if (!world.hasJustTicked()) {
        return {};
    }
    const QHash<qint32, QString> texts = program.listedTexts();
    for (auto text = texts.begin(); text != texts.end(); ++text) {
        // The list is not filled anew while as many are due as it has; one of its tasks may be gone.
        if (world.rows().tasks.count(text.key()) == 0) {
            continue;
        }
        const auto match = number.match(text.value());
        const int times = match.hasMatch() ? match.captured(1).toInt() : 1;
        if (const int expected = world.timesOf(text.key()); times != expected) {
            return QStringLiteral("the reminder of task %1 has come %2 times, not %3")
                .arg(text.key())
                .arg(times)
                .arg(expected);
        }
    }
    return {};
}

} // namespace

QString backupFile(const QDir& backups, const QString& slot)
{
    return backups.filePath(slot + QStringLiteral(".abk"));
}

void perform(
    RunningProgram& program, const Step& step, const SoakWorld::Outcome& outcome, const QDir& backups)
{
    using Kind = Step::Kind;
    switch (step.kind) {
    case Kind::Pass:
        for (int i = 0; i < step.count; ++i) {
            program.database().clock().step(10s);
            program.tick();
        }
        break;
    case Kind::Jump:
        program.database().clock().step(step.seconds);
        break;
    case Kind::AddTask:
        program.addTask(step.entry);
        break;
    case Kind::EditTask:
        program.editTask(step.task, step.entry);
        break;
    case Kind::EditListed:
        program.editListedTask(step.task, step.entry);
        break;
    case Kind::DeleteTask:
        if (outcome.asksWhichTimes) {
            program.deleteRepeating(
                step.task, step.thisTime ? MessageBoxes::Times::This : MessageBoxes::Times::All);
        } else {
            program.deleteTask(step.task);
        }
        break;
    case Kind::Complete:
        program.completeTask(step.task);
        break;
    case Kind::Dismiss:
        program.dismiss(step.task);
        break;
    case Kind::DismissAll:
        program.dismissAll();
        break;
    case Kind::RemindLater:
        program.remindLater(step.task, step.moment);
        break;
    case Kind::BulkDelete:
        program.bulkDelete(
            step.category, step.status, step.taskType, toQDate(step.from), toQDate(step.to), outcome.deleted);
        break;
    case Kind::AddCategory:
        program.addCategory(step.categoryRow.name, step.categoryRow.description, step.categoryRow.icon);
        break;
    case Kind::EditCategory:
        program.editCategory(step.category, step.categoryRow.description, step.categoryRow.icon);
        break;
    case Kind::DeleteCategory:
        program.deleteCategory(step.category);
        break;
    case Kind::Backup:
        program.backUp(backupFile(backups, step.slot));
        break;
    case Kind::Restore:
        program.restore(backupFile(backups, step.slot));
        break;
    case Kind::Settings: {
        QMap<QByteArray, bool> boxes;
        for (std::size_t column = 0; column < Boxes.size(); ++column) {
            if (*Boxes[column] != '\0') {
                boxes[Boxes[column]] = step.settings[static_cast<qsizetype>(column)] == QLatin1String("1");
            }
        }
        program.saveSettings(boxes);
        break;
    }
    case Kind::Restart:
        program.end();
        startAfresh(program);
        break;
    case Kind::Kill:
        program.kill();
        startAfresh(program);
        break;
    }
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    // Nobody asks for them here, and a month has many.
    program.database().statements().take();
}

QString complaintAbout(RunningProgram& program, const SoakWorld& world, const SoakWorld::Outcome& outcome)
{
    QStringList sounds = std::exchange(program.machine().played, {});
    QStringList started = std::exchange(program.machine().shell.started, {});
    sounds.sort();
    started.sort();
    if (sounds != outcome.sounds || started != outcome.started) {
        return QStringLiteral("sounded %1 and started %2, not %3 and %4")
            .arg(
                sounds.join(u' '), started.join(u' '), outcome.sounds.join(u' '), outcome.started.join(u' '));
    }
    QList<qint32> listed = program.listed();
    std::sort(listed.begin(), listed.end());
    const std::vector<qint32> expected = world.listed();
    if (!std::equal(listed.begin(), listed.end(), expected.begin(), expected.end())) {
        return QStringLiteral("the alert lists %1 reminders that are not these %2")
            .arg(listed.size())
            .arg(expected.size());
    }
    if (program.isAlertVisible() != world.isAlertVisible()) {
        return QStringLiteral("the alert is shown, or hidden, against the prediction");
    }
    if (const QString complaint = complaintAboutTimes(program, world); !complaint.isEmpty()) {
        return complaint;
    }
    return program.machine().dialogs.allUsed() ? QString() : QStringLiteral("a box was not shown");
}

int performUntilKilled(const QStringList& arguments)
{
    const QString folder = arguments.value(0);
    const QDir backups(arguments.value(1));
    std::mt19937 chance(arguments.value(2).toUInt());
    const int steps = arguments.value(3).toInt();
    const Moment now = *momentFromStoredText(arguments.value(4).toStdString());

    SoakWorld world(DataRows::read(folder + QStringLiteral("/data.dat")), now);
    for (const QFileInfo& file : backups.entryInfoList({QStringLiteral("*.abk")}, QDir::Files)) {
        world.addBackup(file.completeBaseName(), DataRows::read(file.filePath()));
    }
    RunningProgram program(folder);
    program.database().clock().set(now);
    say("start");
    startAfresh(program);
    QString complaint = complaintAbout(program, world, world.start());
    for (int i = 0; i < steps && complaint.isEmpty(); ++i) {
        const Step step = world.planWithoutRestart(chance);
        const SoakWorld::Outcome outcome = world.apply(step);
        say("begin " + QByteArray::number(i));
        perform(program, step, outcome, backups);
        complaint = complaintAbout(program, world, outcome);
        if (!complaint.isEmpty()) {
            complaint = step.text() + QStringLiteral(": ") + complaint;
        }
    }
    if (!complaint.isEmpty()) {
        std::fprintf(stderr, "%s\n", qPrintable(complaint));
        return 3;
    }
    say("begin " + QByteArray::number(steps));
    return 0;
}
