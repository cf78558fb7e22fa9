#include "app/CommandLine.h"
#include "support/TestMain.h"

#include <QTest>

using Command = CommandLine::Command;
using Fault = CommandLine::Fault;
Q_DECLARE_METATYPE(CommandLine::Command)
Q_DECLARE_METATYPE(CommandLine::Fault)

namespace
{

CommandLine read(const char* words)
{
    return CommandLine::read(QString::fromLatin1(words).split(u' ', Qt::SkipEmptyParts));
}

} // namespace

/// What the words behind the program's name ask for.
class CommandLineTest : public TestCase
{
    Q_OBJECT

private slots:
    void withoutACommandTheProgramStarts_data()
    {
        QTest::addColumn<QString>("words");
        QTest::newRow("nothing") << "";
        QTest::newRow("an option of Qt") << "-style fusion";
        QTest::newRow("with two dashes") << "--platform offscreen --reverse";
        QTest::newRow("with its value behind a sign") << "--style=fusion";
        QTest::newRow("whose value looks like a command") << "-title --list -name --help";
        QTest::newRow("of a session manager") << "-session 10a9b8c7";
        QTest::newRow("words") << "tasks.ics list -";
        QTest::newRow("behind the end of the options") << "-- --list";
        QTest::newRow("an option with one dash that nobody knows") << "-psn_0_1234";
    }

    void withoutACommandTheProgramStarts()
    {
        QFETCH(const QString, words);
        const CommandLine line = CommandLine::read(words.split(u' ', Qt::SkipEmptyParts));
        QCOMPARE(line.command, Command::Start);
        QCOMPARE(line.fault, Fault::None);
    }

    void anExportKnowsItsFileAndFormat()
    {
        const CommandLine line = read("--export a.ics");
        QCOMPARE(line.command, Command::Export);
        QCOMPARE(line.file, QStringLiteral("a.ics"));
        QCOMPARE(line.format, ExchangeFormat::ICalendar);
        QCOMPARE(read("--export=b.CSV").format, ExchangeFormat::Csv);
        QCOMPARE(read("--export=b.CSV").file, QStringLiteral("b.CSV"));
    }

    void anImportStoresNothingWithoutAYes()
    {
        const CommandLine line = read("--import a.csv");
        QCOMPARE(line.command, Command::Import);
        QVERIFY(!line.yes && !line.withPrograms);
        QVERIFY(read("--yes --import a.csv").yes);
        QVERIFY(!read("--yes --import a.csv").withPrograms);
        QVERIFY(read("--import a.csv --with-programs").withPrograms);
    }

    void theFormatThatIsSaidGoesBeforeTheName()
    {
        QCOMPARE(read("--export a.ics --format csv").format, ExchangeFormat::Csv);
        QCOMPARE(read("--format=ICS --import -").format, ExchangeFormat::ICalendar);
        QCOMPARE(read("--format=ICS --import -").file, QStringLiteral("-"));
        QCOMPARE(read("--export tasks --format csv").command, Command::Export);
    }

    void aListIsTextOrJson()
    {
        QCOMPARE(read("--list").command, Command::List);
        QVERIFY(!read("--list").json);
        QVERIFY(read("--json --list").json);
    }

    void optionsOfQtMayStandBetween() { QCOMPARE(read("-platform minimal --list").command, Command::List); }

    void whoeverAsksForHelpGetsItWhateverElseIsSaid()
    {
        QCOMPARE(read("--nonsense --help").command, Command::Help);
        QCOMPARE(read("--help --nonsense").command, Command::Help);
        QCOMPARE(read("--version").command, Command::Version);
    }

    void whatCannotBeToldIsRefused_data()
    {
        QTest::addColumn<QString>("words");
        QTest::addColumn<Fault>("fault");
        QTest::addColumn<QString>("word");
        const auto row = [](const char* words, Fault fault, const char* word) {
            QTest::newRow(words) << words << fault << word;
        };
        row("--exprot a.ics", Fault::UnknownOption, "--exprot");
        row("--lists=all", Fault::UnknownOption, "--lists");
        row("--list -x", Fault::UnknownOption, "-x");
        row("--export", Fault::WithoutValue, "--export");
        row("--import=", Fault::WithoutValue, "--import");
        row("--export a.ics --format", Fault::WithoutValue, "--format");
        row("--list=all", Fault::WithValue, "--list");
        row("--import a.ics --yes=no", Fault::WithValue, "--yes");
        row("--export a.ics --format pdf", Fault::UnknownFormat, "pdf");
        row("--export a.ics --format a.csv", Fault::UnknownFormat, "a.csv");
        row("--export -", Fault::NoFormat, "-");
        row("--import tasks.txt", Fault::NoFormat, "tasks.txt");
        row("--list --format csv", Fault::NeedsAnother, "--format");
        row("--json", Fault::NeedsAnother, "--json");
        row("--export a.ics --json", Fault::NeedsAnother, "--json");
        row("--export a.ics --yes", Fault::NeedsAnother, "--yes");
        row("--with-programs", Fault::NeedsAnother, "--with-programs");
        row("--list --export a.ics", Fault::TwoCommands, "--export");
        row("--import a.ics --import b.ics", Fault::TwoCommands, "--import");
        row("--import a.ics b.ics", Fault::WordTooMany, "b.ics");
        row("--list -- --json", Fault::WordTooMany, "--json");
    }

    void whatCannotBeToldIsRefused()
    {
        QFETCH(const QString, words);
        QFETCH(const Fault, fault);
        QFETCH(const QString, word);
        const CommandLine line = CommandLine::read(words.split(u' '));
        QCOMPARE(line.command, Command::Refuse);
        QCOMPARE(line.fault, fault);
        QCOMPARE(line.word, word);
        QVERIFY2(line.complaint().contains(word), qPrintable(line.complaint()));
        QVERIFY(line.complaint().endsWith(u'.'));
    }

    void twoCommandsAreBothNamed()
    {
        QCOMPARE(read("--list --export a.ics").complaint(),
            QStringLiteral("The options \"--list\" and \"--export\" do not go together."));
        QCOMPARE(
            read("--json").complaint(), QStringLiteral("The option \"--json\" goes with \"--list\" only."));
    }

    void theHelpNamesEveryOption()
    {
        const QString help = CommandLine::help();
        for (const char* option : {"--export", "--import", "--yes", "--with-programs", "--format", "--list",
                 "--json", "--help", "--version"}) {
            QVERIFY2(help.contains(QLatin1String(option)), option);
        }
        QVERIFY(help.endsWith(u'\n'));
    }
};

AMBERTASK_TEST_MAIN(CommandLineTest)
#include "tst_command_line.moc"
