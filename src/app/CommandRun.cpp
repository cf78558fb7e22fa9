#include "app/CommandRun.h"

#include "app/Draft.h"
#include "app/TaskLines.h"
#include "data/DataFileCopies.h"
#include "data/DataFileRoad.h"
#include "data/KeptCopies.h"
#include "data/TaskArchive.h"
#include "data/UnreadableRecords.h"
#include "store/DatabaseError.h"
#include "system/FileReplace.h"
#include "system/ProgramFolder.h"
#include "system/Progress.h"
#include "system/SingleInstance.h"
#include "system/StandardStreams.h"
#include "system/TerminationSignals.h"
#include "widgets/ChangeTexts.h"

#include <QCoreApplication>
#include <optional>
#include <utility>

namespace
{

using Command = CommandLine::Command;
using Outcome = ImportedTask::Outcome;

/// Counts the records that are left out, and keeps the first.
class LeftOut final : public UnreadableRecordListener
{
public:
    void recordLeftOut(const UnreadableRecord& record) override
    {
        if (m_count++ == 0) {
            m_first = sentenceOf(record);
        }
    }
    /// Throws RuntimeError, which names the first.
    void requireNone() const
    {
        if (m_count > 0) {
            throw RuntimeError(m_count == 1
                    ? CommandRun::tr("1 record cannot be read and is left out. %1").arg(m_first)
                    : CommandRun::tr(
                        "%n records cannot be read and are left out. The first: %1", nullptr, m_count)
                          .arg(m_first));
        }
    }

private:
    int m_count = 0;
    QString m_first;
};

/// Requests to end the process, such as Ctrl+C, cancel the operation.
class StoppableProgress final : public Progress
{
public:
    StoppableProgress()
    {
        QObject::connect(&m_signals, &TerminationSignals::terminationRequested, [this] { m_isAsked = true; });
    }

    void advance(qint64, qint64) override
    {
        QCoreApplication::processEvents();
        if (m_isAsked) {
            throw Cancelled();
        }
    }

private:
    TerminationSignals m_signals;
    bool m_isAsked = false;
};

/// The text as a line for a person; what commands a terminal is made visible.
QString asLine(const QString& text)
{
    QString line = text.simplified();
    for (QChar& letter : line) {
        if (letter.category() == QChar::Other_Control) {
            letter = QChar::ReplacementCharacter;
        }
    }
    return line + u'\n';
}

bool isStandardStream(const CommandLine& line)
{
    return line.file == QLatin1String(CommandLine::StandardStream);
}

/// Upgrades an older data file as a start does. Not under a running copy, which has done so and knows tasks
/// by their ids.
void bringUp(const DatabaseEngine& engine)
{
    try {
        if (!isDataFileBehind(engine)) {
            return;
        }
    } catch (const DatabaseError&) {
        // It cannot be written, and can be used as it is.
        return;
    }
    // A start in these moments ends as it does beside a running copy.
    const SingleInstance guard(engine.programFolder);
    if (!guard.otherCopyRuns()) {
        DataFileCopies(engine).bringUp();
    }
}

} // namespace

CommandRun::Status CommandRun::run(const CommandLine& line)
{
    Status status = Failed;
    QString failure;
    try {
        status = tryToRun(line);
    } catch (const RuntimeError& error) {
        failure = error.text();
    } catch (const std::exception& error) {
        failure = QString::fromLocal8Bit(error.what());
    }
    m_around.output.flush();
    if (m_around.output.hasNoReader()) {
        return Failed;
    }
    if (m_around.output.error() != 0) {
        failure = tr("The output could not be written: %1.").arg(FileError::reason(m_around.output.error()));
    }
    if (!failure.isEmpty()) {
        complain(failure);
        return Failed;
    }
    return status;
}

CommandRun::Status CommandRun::tryToRun(const CommandLine& line)
{
    switch (line.command) {
    case Command::Help:
        m_around.output.write(CommandLine::help().toUtf8());
        return Done;
    case Command::Version:
        m_around.output.write("Ambertask " AMBERTASK_VERSION "\n");
        return Done;
    case Command::List:
        return list(line.json);
    case Command::Export:
        return exportTasks(line);
    case Command::Import:
        return importTasks(line);
    case Command::Refuse:
        complain(line.complaint() + u' ' + tr("See \"Ambertask --help\"."));
        return WrongUsage;
    case Command::Start:
        break;
    }
    return Done;
}

CommandRun::Status CommandRun::list(bool asJson)
{
    LeftOut leftOut;
    DatabaseEngine engine = engineOfTheUser();
    engine.unreadable = &leftOut;
    refuseLaterDataFile(engine);
    Draft draft;
    QIODevice& device = draft.device();
    device.write(asJson ? QByteArray("[") : tabbedNames());
    const char* separator = "\n";
    TaskArchive::read(engine, std::nullopt, [&](const TaskRecord& task) {
        if (asJson) {
            device.write(separator);
            device.write(jsonObject(task));
            separator = ",\n";
        } else {
            device.write(tabbedLine(task));
        }
    });
    if (asJson) {
        device.write("\n]\n");
    }
    draft.copyTo(m_around.output);
    leftOut.requireNone();
    return Done;
}

CommandRun::Status CommandRun::exportTasks(const CommandLine& line)
{
    LeftOut leftOut;
    DatabaseEngine engine = engineOfTheUser();
    engine.unreadable = &leftOut;
    if (isSameFile(line.file, pathIn(engine.programFolder, QLatin1String(DataFileName)))) {
        throw FileError(DataFileCopies::tr("\"%1\" is the data file itself.").arg(line.file));
    }
    refuseLaterDataFile(engine);
    bringUp(engine);
    const std::unique_ptr<Exchange> exchange = m_around.exchange();
    if (isStandardStream(line)) {
        Draft draft;
        exchange->exportTo(draft.device(), line.format, {}, engine);
        draft.copyTo(m_around.output);
    } else {
        exportToFile(line, *exchange, engine);
    }
    leftOut.requireNone();
    return Done;
}

void CommandRun::exportToFile(const CommandLine& line, Exchange& exchange, const DatabaseEngine& engine)
{
    StoppableProgress progress;
    try {
        exchange.exportTo(line.file, line.format, {}, engine, &progress);
    } catch (const FileError& error) {
        // It names the unfinished file, which nobody has heard of.
        throw error.why().isEmpty() ? error : FileError(line.file, error.why());
    }
}

CommandRun::Status CommandRun::importTasks(const CommandLine& line)
{
    if (m_around.installation.shippedFolder.isEmpty()) {
        makeFolder();
    }
    // A first start would make a folder with the data file that is shipped.
    const auto presentFolder = [this] {
        return hasProgramFolder() ? m_around.programFolder : m_around.installation.shippedFolder;
    };
    const DatabaseEngine engine = engineOn(presentFolder());
    refuseLaterDataFile(engine);
    if (line.yes && hasProgramFolder()) {
        bringUp(engine);
    }
    const std::unique_ptr<Exchange> exchange = m_around.exchange();
    std::optional<Draft> input;
    if (isStandardStream(line)) {
        QFile stream;
        if (!openStandardInput(stream)) {
            throw FileError(line.file, stream.errorString());
        }
        input.emplace().takeFrom(stream);
    }
    const auto planNow = [&] {
        LeftOut leftOut;
        DatabaseEngine reading = engineOn(presentFolder());
        reading.unreadable = &leftOut;
        m_repeating.forget();
        ImportPlan plan = input ? exchange->plan(input->fromItsBeginning(), line.format, reading)
                                : exchange->plan(line.file, line.format, reading);
        plan.takePrograms(line.withPrograms);
        return plan;
    };
    const ImportPlan plan = planNow();
    tellPlan(plan);
    if (!line.yes) {
        throw RuntimeError(tr("Nothing was imported; the option \"--yes\" imports it."));
    }
    if (!plan.isEmpty()) {
        carryOut(plan, *exchange, planNow);
    }
    say(plan.isEmpty() ? tr("There is nothing to import.") : tr("Imported."));
    if (plan.unreadableParts > 0) {
        throw RuntimeError(tr("What cannot be read in the file was left out."));
    }
    return Done;
}

void CommandRun::tellPlan(const ImportPlan& plan)
{
    for (const ImportedTask& imported : plan.tasks) {
        const QString name = QString::fromStdString(imported.task.name);
        if (imported.outcome == Outcome::New) {
            say(tr("New: %1").arg(name));
        } else if (imported.outcome == Outcome::Changed) {
            say(tr("Changed: %1").arg(name));
        }
    }
    for (const QString& category : plan.newCategories) {
        say(tr("New category: %1").arg(category));
    }
    for (const ImportedTask* imported : plan.programs()) {
        const QString name = QString::fromStdString(imported->task.name);
        const QString program = QString::fromStdString(imported->program);
        say(imported->takesProgram
                ? tr("Starts a program, \"%1\": %2").arg(name, program)
                : tr("Left out, a program that \"%1\" would start: %2").arg(name, program));
    }
    for (const UnreadablePart& part : plan.unreadable) {
        say(part.name.isEmpty() ? tr("Not readable, line %1: %2").arg(QString::number(part.line), part.reason)
                                : tr("Not readable, line %1, \"%2\": %3")
                                      .arg(QString::number(part.line), part.name, part.reason));
    }
    if (plan.unreadableParts > plan.unreadable.size()) {
        say(QStringLiteral("..."));
    }
    for (const QString& sentence : summaryOf(plan)) {
        say(sentence);
    }
}

void CommandRun::makeFolder()
{
    try {
        makeProgramFolder(m_around.installation, m_around.programFolder);
    } catch (const FileError& error) {
        throw FileError(
            QCoreApplication::translate("modAmbertaks", "The program folder could not be made.\n%1")
                .arg(error.text()));
    }
}

void CommandRun::carryOut(
    const ImportPlan& told, Exchange& exchange, const std::function<ImportPlan()>& planAgain)
{
    makeFolder();
    const DatabaseEngine engine = engineOn(m_around.programFolder);
    StoppableProgress progress;
    if (const QString why = KeptCopies(engine).keep(CopyOccasion::Import, &progress); !why.isEmpty()) {
        say(ChangeTexts::withNoCopy({}, why));
    }
    try {
        exchange.carryOut(told, engine, &progress);
    } catch (const PlanOutdatedError&) {
        // A running copy notes that a reminder has sounded, for example, which may change nothing here.
        const ImportPlan plan = planAgain();
        if (!plan.isSameAs(told)) {
            throw;
        }
        exchange.carryOut(plan, engine, &progress);
    }
}

bool CommandRun::hasProgramFolder() const
{
    if (!m_around.installation.shippedFolder.isEmpty()) {
        return isPresent(m_around.programFolder);
    }
    return !isPresent(pathIn(m_around.programFolder, QLatin1String(NewDataFileName)))
        || isPresent(pathIn(m_around.programFolder, QLatin1String(DataFileName)));
}

DatabaseEngine CommandRun::engineOn(const QString& folder)
{
    DatabaseEngine engine{folder, &m_around.clock, nullptr, nullptr, &m_dataFileIsSound};
    engine.foreign = &m_foreign;
    engine.repeating = &m_repeating;
    return engine;
}

DatabaseEngine CommandRun::engineOfTheUser()
{
    if (!hasProgramFolder()) {
        throw FileError(m_around.installation.shippedFolder.isEmpty()
                ? tr("There are no tasks yet. The first start makes the data file, and so does an import.")
                : tr("There are no tasks yet: the program folder \"%1\" does not exist. The first start "
                     "makes it, and so does an import.")
                      .arg(m_around.programFolder));
    }
    return engineOn(m_around.programFolder);
}

void CommandRun::say(const QString& text)
{
    m_around.output.write(asLine(text).toUtf8());
}

void CommandRun::complain(const QString& text)
{
    m_around.errors.write(QByteArray(ProductName) + ": " + asLine(text).toUtf8());
}
