#include "app/CommandRun.h"
#include "data/DataFileRoad.h"
#include "support/FileContent.h"
#include "support/OlderDataFile.h"
#include "support/TestDatabase.h"
#include "support/TestMain.h"
#include "system/FileReplace.h"
#include "system/LockFile.h"
#include "system/StandardStreams.h"
#include "tests/system/InstalledProgram.h"

#include <QBuffer>
#include <QDir>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTemporaryFile>
#include <QTest>
#include <csignal>

namespace
{

using namespace std::chrono_literals;

/// Takes part in no format: remembers what it is asked for, and plans what a test says.
struct ScriptedExchange {
    ImportPlan plan;
    QStringList calls;
    std::function<void(Progress*)> duringCarryOut = [](Progress*) {
    };
    std::optional<FileError> exportFailure;
};

class ExchangeDouble final : public Exchange
{
public:
    explicit ExchangeDouble(ScriptedExchange& script) : m_script(script) { }

    qint64 exportTo(QIODevice& device, ExchangeFormat format, const ExportChoice&, const DatabaseEngine&,
        Progress*) override
    {
        m_script.calls.append(QStringLiteral("export %1").arg(int(format)));
        device.write("all tasks\n");
        return 1;
    }
    qint64 exportTo(const QString& file, ExchangeFormat format, const ExportChoice&, const DatabaseEngine&,
        Progress*) override
    {
        if (m_script.exportFailure) {
            throw *m_script.exportFailure;
        }
        m_script.calls.append(QStringLiteral("export %1 to %2").arg(int(format)).arg(file));
        return 1;
    }
    ImportPlan plan(QIODevice&, ExchangeFormat, const DatabaseEngine&, Progress*) override
    {
        return m_script.plan;
    }
    ImportPlan plan(
        const QString& file, ExchangeFormat format, const DatabaseEngine& engine, Progress*) override
    {
        m_script.calls.append(QStringLiteral("plan %1 of %2 in %3")
                                  .arg(int(format))
                                  .arg(file, QDir(engine.programFolder).dirName()));
        return m_script.plan;
    }
    ImportResult carryOut(const ImportPlan& plan, const DatabaseEngine& engine, Progress* progress) override
    {
        m_script.calls.append(QStringLiteral("carry out in %1").arg(QDir(engine.programFolder).dirName()));
        for (const ImportedTask& imported : plan.tasks) {
            m_script.calls.append(QString::fromStdString(imported.task.name)
                + (imported.takesProgram ? QStringLiteral(" with its program") : QString()));
        }
        m_script.duringCarryOut(progress);
        return {};
    }

private:
    ScriptedExchange& m_script;
};

ImportedTask imported(const char* name, ImportedTask::Outcome outcome, const char* program = "")
{
    ImportedTask task;
    task.outcome = outcome;
    task.task.name = name;
    task.program = program;
    return task;
}

/// A command, what it writes and what it says.
class Command
{
public:
    Command()
    {
        m_output.open();
        m_errors.open(QIODevice::WriteOnly);
    }

    CommandRun::Status run(const char* words)
    {
        return run(words, {QString(), QString(), QString(), database.folder()}, database.folder());
    }
    CommandRun::Status run(const char* words, const Installation& installation, const QString& programFolder)
    {
        m_output.resize(0);
        m_output.seek(0);
        m_errors.buffer().clear();
        m_errors.seek(0);
        OutputStream stream(m_output.handle());
        CommandRun command({installation, programFolder, database.clock(),
            [this] { return std::make_unique<ExchangeDouble>(exchange); }, stream, m_errors});
        return command.run(CommandLine::read(QString::fromUtf8(words).split(u' ', Qt::SkipEmptyParts)));
    }

    QString output() const { return QString::fromUtf8(contentOf(m_output.fileName())); }
    QStringList lines() const { return output().split(u'\n', Qt::SkipEmptyParts); }
    QString errors() const { return QString::fromUtf8(m_errors.data()); }

    TestDatabase database;
    ScriptedExchange exchange;

private:
    QTemporaryFile m_output;
    QBuffer m_errors;
};

} // namespace

/// What the commands of the command line do, write and say.
class CommandRunTest : public TestCase
{
    Q_OBJECT

private slots:
    void theListHasALineForEachTask()
    {
        Command command;
        aTask(command.database).named(QStringLiteral("one\ttwo")).add();
        aTask(command.database).named(QStringLiteral("\u65e5")).played().add();
        QCOMPARE(command.run("--list"), CommandRun::Done);
        QCOMPARE(command.lines().size(), 3);
        QVERIFY(command.lines().at(0).startsWith(QStringLiteral("task_id\ttask_name\t")));
        QVERIFY(command.lines().at(1).startsWith(QStringLiteral("1\tone\\ttwo\t")));
        QVERIFY(command.lines().at(2).startsWith(QStringLiteral("2\t\u65e5\t")));
        QVERIFY(command.lines().at(2).endsWith(QStringLiteral("\t1\t0\tPersonal")));
        QCOMPARE(command.errors(), QString());
    }

    void theJsonListIsAnArrayOfObjects()
    {
        Command command;
        QCOMPARE(command.run("--list --json"), CommandRun::Done);
        QVERIFY(QJsonDocument::fromJson(command.output().toUtf8()).isArray());
        aTask(command.database).named(QStringLiteral("one")).in(2).add();
        aTask(command.database).named(QStringLiteral("two")).add();
        QCOMPARE(command.run("--list --json"), CommandRun::Done);
        const QJsonArray array = QJsonDocument::fromJson(command.output().toUtf8()).array();
        QCOMPARE(array.size(), 2);
        const QJsonObject first = array.first().toObject();
        QCOMPARE(first.value(QStringLiteral("task_name")).toString(), QStringLiteral("one"));
        QCOMPARE(first.value(QStringLiteral("cat_id")).toInt(), 2);
        QCOMPARE(first.value(QStringLiteral("category")).toString(), QStringLiteral("Work"));
        QCOMPARE(first.size(), 14);
    }

    void aRecordThatCannotBeReadIsLeftOutAndNamed()
    {
        Command command;
        aTask(command.database).named(QStringLiteral("good")).add();
        aTask(command.database).named(QStringLiteral("bad")).add();
        command.database.sql(QStringLiteral("update tasks set task_status='x' where task_name='bad'"));
        QCOMPARE(command.run("--list"), CommandRun::Failed);
        QCOMPARE(command.lines().size(), 2);
        QVERIFY2(command.errors().contains(QLatin1String("bad")), qPrintable(command.errors()));
        QCOMPARE(command.errors().count(u'\n'), 1);
    }

    void anOlderDataFileIsListedAndStaysAsItIs()
    {
        Command command;
        aTask(command.database).add();
        makeOlder(command.database);
        const QByteArray before = contentOf(command.database.dataFile());
        QCOMPARE(command.run("--list"), CommandRun::Done);
        QCOMPARE(command.lines().size(), 2);
        QVERIFY(contentOf(command.database.dataFile()) == before);
    }

    void aLaterDataFileIsRefused_data() { commands(); }
    void aLaterDataFileIsRefused()
    {
        QFETCH(const QByteArray, words);
        Command command;
        command.database.sql(QStringLiteral("pragma user_version=%1").arg(DataFileVersion + 1));
        QCOMPARE(command.run(words.constData()), CommandRun::Failed);
        QVERIFY2(command.errors().contains(QLatin1String("later version")), qPrintable(command.errors()));
        QCOMPARE(command.output(), QString());
    }

    void anOlderDataFileIsBroughtUpBeforeAnImport()
    {
        Command command;
        makeOlder(command.database);
        QCOMPARE(command.run("--import a.ics"), CommandRun::Failed);
        QVERIFY(command.database.sql(QStringLiteral("pragma user_version")).toInt() < DataFileVersion);
        QCOMPARE(command.run("--import a.ics --yes"), CommandRun::Done);
        QCOMPARE(command.database.sql(QStringLiteral("pragma user_version")).toInt(), DataFileVersion);
        QVERIFY(!QFile::exists(command.database.dataFile() + QStringLiteral("-lock")));
    }

    void underARunningCopyNothingIsBroughtUp()
    {
        Command command;
        makeOlder(command.database);
        const LockFile running(
            command.database.dataFile() + QStringLiteral("-lock"), LockFile::IfHeld::GiveUp);
        QVERIFY(running.isHeld());
        QCOMPARE(command.run("--import a.ics --yes"), CommandRun::Done);
        QVERIFY(command.database.sql(QStringLiteral("pragma user_version")).toInt() < DataFileVersion);
    }

    void whatIsNoDataFileIsSaidInOneSentence()
    {
        Command command;
        QFile file(command.database.dataFile());
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(QByteArray(5000, 'x'));
        file.close();
        QCOMPARE(command.run("--list"), CommandRun::Failed);
        QVERIFY(command.errors().contains(QLatin1String("data.dat")));
        QCOMPARE(command.errors().count(u'\n'), 1);
        QCOMPARE(command.output(), QString());
    }

    void aMissingDataFileIsSaidAndNotMade_data() { commands(); }
    void aMissingDataFileIsSaidAndNotMade()
    {
        QFETCH(const QByteArray, words);
        Command command;
        QVERIFY(QFile::remove(command.database.dataFile()));
        QCOMPARE(command.run(words.constData()), CommandRun::Failed);
        QVERIFY2(command.errors().contains(QLatin1String("does not exist")), qPrintable(command.errors()));
        QVERIFY(!QFile::exists(command.database.dataFile()));
    }

    void anExportGoesToTheFile()
    {
        Command command;
        QCOMPARE(command.run("--export /x/a.csv"), CommandRun::Done);
        QCOMPARE(command.exchange.calls, QStringList{"export 1 to /x/a.csv"});
        QCOMPARE(command.output() + command.errors(), QString());
    }

    void anExportToStandardOutputIsAllThatIsWritten()
    {
        Command command;
        QCOMPARE(command.run("--export - --format ics"), CommandRun::Done);
        QCOMPARE(command.output(), QStringLiteral("all tasks\n"));
    }

    void aFailedExportNamesTheFileThatWasAskedFor()
    {
        Command command;
        command.exchange.exportFailure.emplace(
            QStringLiteral("/x/.ambertask-0"), QStringLiteral("the disk is full"));
        QCOMPARE(command.run("--export /x/a.csv"), CommandRun::Failed);
        QCOMPARE(command.errors(), QStringLiteral("Ambertask: \"/x/a.csv\": the disk is full.\n"));
    }

    void anExportNeverReplacesTheDataFile()
    {
        Command command;
        const QByteArray words = "--export " + command.database.dataFile().toUtf8() + " --format csv";
        QCOMPARE(command.run(words.constData()), CommandRun::Failed);
        QCOMPARE(command.exchange.calls, QStringList());
        QVERIFY(command.errors().contains(QLatin1String("is the data file itself")));
    }

    void aPreviewSaysWhatWouldBeAndStoresNothing()
    {
        Command command;
        using Outcome = ImportedTask::Outcome;
        ImportPlan& plan = command.exchange.plan;
        plan.tasks = {imported("milk\nbread", Outcome::New), imported("Bob", Outcome::Changed, "/bin/true")};
        plan.added = 1;
        plan.changed = 1;
        plan.same = 3;
        plan.newCategories = {QStringLiteral("Errands")};
        plan.unreadable = {{12, QStringLiteral("Foo"), QStringLiteral("Its date is none.")},
            {20, {}, QStringLiteral("It has no end.")}};
        plan.unreadableParts = 2;
        QCOMPARE(command.run("--import a.ics"), CommandRun::Failed);
        QCOMPARE(command.exchange.calls.size(), 1);
        QVERIFY(command.exchange.calls.first().startsWith(QStringLiteral("plan 0 of a.ics in ")));
        QCOMPARE(command.lines(),
            (QStringList{"New: milk bread", "Changed: Bob", "New category: Errands",
                "Left out, a program that \"Bob\" would start: /bin/true",
                "Not readable, line 12, \"Foo\": Its date is none.", "Not readable, line 20: It has no end.",
                "1 task is new.", "1 task is changed.", "3 tasks are the same.", "1 category is made.",
                "2 tasks cannot be read and stay out."}));
        QCOMPARE(command.errors(),
            QStringLiteral("Ambertask: Nothing was imported; the option \"--yes\" imports it.\n"));
    }

    void aYesImportsWithoutProgramsAndNamesThem()
    {
        Command command;
        command.exchange.plan.tasks = {imported("Bob", ImportedTask::Outcome::New, "/bin/true")};
        QCOMPARE(command.run("--import a.ics --yes"), CommandRun::Done);
        QCOMPARE(command.exchange.calls.value(2), QStringLiteral("Bob"));
        QVERIFY(command.output().contains(
            QStringLiteral("Left out, a program that \"Bob\" would start: /bin/true")));
        QCOMPARE(command.lines().last(), QStringLiteral("Imported."));
        QCOMPARE(command.errors(), QString());
    }

    void aCopyOfTheDataIsKeptBeforeAnImport()
    {
        Command command;
        command.exchange.plan.tasks = {imported("Bob", ImportedTask::Outcome::New)};
        const QDir copies(command.database.folder() + QStringLiteral("/copies"));
        command.run("--import a.ics");
        QVERIFY(!copies.exists());
        const QByteArray before = contentOf(command.database.dataFile());
        command.exchange.duringCarryOut = [&](Progress*) {
            const QStringList names = copies.entryList(QDir::Files);
            QCOMPARE(names.size(), 1);
            QVERIFY(contentOf(copies.filePath(names.first())) == before);
        };
        QCOMPARE(command.run("--import a.ics --yes"), CommandRun::Done);
        QVERIFY(copies.exists());
    }

    void anImportWithoutACopySaysSo()
    {
        Command command;
        command.exchange.plan.tasks = {imported("Bob", ImportedTask::Outcome::New)};
        writeText(command.database.folder() + QStringLiteral("/copies"), "a file where the folder would be");
        QCOMPARE(command.run("--import a.ics --yes"), CommandRun::Done);
        QVERIFY2(
            command.output().contains(QStringLiteral("No copy was kept: ")), qPrintable(command.output()));
        QCOMPARE(command.exchange.calls.value(2), QStringLiteral("Bob"));
    }

    void programsAreTakenWhenTheyAreAskedFor()
    {
        Command command;
        command.exchange.plan.tasks = {imported("Bob", ImportedTask::Outcome::Same, "/bin/true")};
        QCOMPARE(command.run("--import a.ics --yes --with-programs"), CommandRun::Done);
        QCOMPARE(command.exchange.calls.value(2), QStringLiteral("Bob with its program"));
        QVERIFY(command.output().contains(QStringLiteral("Starts a program, \"Bob\": /bin/true")));
    }

    void whatCommandsATerminalIsNotPassedOn()
    {
        Command command;
        command.exchange.plan.tasks = {imported("\x1b[2Jx", ImportedTask::Outcome::New)};
        command.run("--import a.ics");
        QVERIFY(command.output().contains(QStringLiteral("New: \ufffd[2Jx\n")));
        command.run("--no\x1b[2J");
        QVERIFY(!command.errors().contains(u'\x1b'));
    }

    void nothingToImportIsNoFailure()
    {
        Command command;
        QCOMPARE(command.run("--import a.ics --yes"), CommandRun::Done);
        QCOMPARE(command.exchange.calls.size(), 1);
        QCOMPARE(command.lines().last(), QStringLiteral("There is nothing to import."));
    }

    void partsThatCannotBeReadMakeTheStatusAFailure()
    {
        Command command;
        command.exchange.plan.tasks = {imported("Bob", ImportedTask::Outcome::New)};
        command.exchange.plan.unreadableParts = 1;
        command.exchange.plan.unreadable = {{3, {}, QStringLiteral("It has no end.")}};
        QCOMPARE(command.run("--import a.ics --yes"), CommandRun::Failed);
        QCOMPARE(command.lines().last(), QStringLiteral("Imported."));
        QCOMPARE(command.errors().count(u'\n'), 1);
    }

    void anImportIsPlannedAgainWhenAnotherProgramHasChangedTheTasksMeanwhile()
    {
        Command command;
        command.exchange.plan.tasks = {imported("Bob", ImportedTask::Outcome::New, "/bin/true")};
        int times = 0;
        command.exchange.duringCarryOut = [&times](Progress*) {
            if (++times == 1) {
                throw PlanOutdatedError(QStringLiteral("changed"));
            }
        };
        QCOMPARE(command.run("--import a.ics --yes --with-programs"), CommandRun::Done);
        QCOMPARE(command.exchange.calls.filter(QStringLiteral("plan")).size(), 2);
        QCOMPARE(command.exchange.calls.last(), QStringLiteral("Bob with its program"));
        QCOMPARE(command.exchange.calls.filter(QStringLiteral("carry out")).size(), 2);
        QCOMPARE(command.output().count(QStringLiteral("Bob")), 2);
    }

    void anImportThatWouldDoSomethingElseNowStoresNothing()
    {
        Command command;
        command.exchange.plan.tasks = {imported("Bob", ImportedTask::Outcome::New)};
        command.exchange.duringCarryOut = [&command](Progress*) {
            command.exchange.plan.tasks.front().outcome = ImportedTask::Outcome::Changed;
            throw PlanOutdatedError(QStringLiteral("changed"));
        };
        QCOMPARE(command.run("--import a.ics --yes"), CommandRun::Failed);
        QCOMPARE(command.exchange.calls.filter(QStringLiteral("carry out")).size(), 1);
        QCOMPARE(command.errors(), QStringLiteral("Ambertask: changed\n"));
    }

    void anImportIntoAnUnpackedFolderMakesItsDataFile()
    {
        Command command;
        const QString fresh = command.database.folder() + QStringLiteral("/data.new");
        QVERIFY(QFile::rename(command.database.dataFile(), fresh));
        QCOMPARE(command.run("--list"), CommandRun::Failed);
        QVERIFY(command.errors().contains(QStringLiteral("There are no tasks yet.")));
        QVERIFY(QFile::exists(fresh));
        command.exchange.plan.tasks = {imported("Bob", ImportedTask::Outcome::New)};
        QCOMPARE(command.run("--import a.ics --yes"), CommandRun::Done);
        QVERIFY(QFile::exists(command.database.dataFile()) && !QFile::exists(fresh));
    }

    void anInterruptCancelsTheImport()
    {
        Command command;
        command.exchange.plan.tasks = {imported("Bob", ImportedTask::Outcome::New)};
        bool wentOn = false;
        command.exchange.duringCarryOut = [&wentOn](Progress* progress) {
            progress->advance(0, 2);
            std::raise(SIGINT);
            progress->advance(1, 2);
            wentOn = true;
        };
        QCOMPARE(command.run("--import a.ics --yes"), CommandRun::Failed);
        QVERIFY(!wentOn);
        QCOMPARE(command.errors(), QStringLiteral("Ambertask: The operation was cancelled.\n"));
    }

    void beforeTheFirstStartThereIsNothingToReadAndNothingIsMade()
    {
        Command command;
        const InstalledProgram installed;
        for (const char* words : {"--list", "--list --json", "--export a.ics", "--export - --format csv"}) {
            QCOMPARE(command.run(words, installed.installation(), installed.folder()), CommandRun::Failed);
            QVERIFY(command.errors().contains(installed.folder()));
            QCOMPARE(command.output(), QString());
        }
        QVERIFY(!QFile::exists(installed.folder()));
    }

    void onlyAnImportThatStoresMakesTheProgramFolder()
    {
        Command command;
        const InstalledProgram installed;
        QVERIFY(QFile::remove(installed.shippedPath("data.dat")));
        QVERIFY(QFile::copy(command.database.dataFile(), installed.shippedPath("data.dat")));
        const auto run = [&](const char* words) {
            command.exchange.calls.clear();
            return command.run(words, installed.installation(), installed.folder());
        };
        command.exchange.plan.tasks = {imported("Bob", ImportedTask::Outcome::New)};
        QCOMPARE(run("--import a.ics"), CommandRun::Failed);
        QCOMPARE(command.exchange.calls, QStringList{"plan 0 of a.ics in ambertask"});
        QCOMPARE(run("--help"), CommandRun::Done);
        QCOMPARE(run("--version"), CommandRun::Done);
        QVERIFY(!QFile::exists(installed.folder()));
        QCOMPARE(run("--import a.ics --yes"), CommandRun::Done);
        QCOMPARE(command.exchange.calls.value(1), QStringLiteral("carry out in Ambertask"));
        QCOMPARE(installed.namesInFolder(), QStringLiteral("Ambertask copies data.dat"));
    }

    void aMistakeIsSaidWithAPointerToTheHelp()
    {
        Command command;
        QCOMPARE(command.run("--exprot a.ics"), CommandRun::WrongUsage);
        QCOMPARE(command.errors(),
            QStringLiteral("Ambertask: There is no option \"--exprot\". See \"Ambertask --help\".\n"));
        QCOMPARE(command.output(), QString());
    }

private:
    static void commands()
    {
        QTest::addColumn<QByteArray>("words");
        QTest::newRow("list") << QByteArray("--list");
        QTest::newRow("json") << QByteArray("--list --json");
        QTest::newRow("export") << QByteArray("--export a.ics");
        QTest::newRow("preview") << QByteArray("--import a.ics");
        QTest::newRow("import") << QByteArray("--import a.ics --yes");
    }
};

AMBERTASK_TEST_MAIN(CommandRunTest)
#include "tst_command_run.moc"
