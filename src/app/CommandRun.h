#pragma once

#include "app/CommandLine.h"
#include "data/RepeatRules.h"
#include "store/DatabaseEngine.h"
#include "store/ForeignChanges.h"
#include "system/Installation.h"

#include <functional>

class OutputStream;
class QIODevice;

/// Does what a command line asks for, without a window. One thread; its texts are in the language of the
/// application object.
class CommandRun
{
    Q_DECLARE_TR_FUNCTIONS(CommandRun)

public:
    /// Where a command finds and leaves things. Everything outlives the run.
    struct Surroundings {
        Installation installation;
        QString programFolder; ///< may not exist yet
        const Clock& clock;
        ExchangeFactory exchange;
        OutputStream& output;
        QIODevice& errors; ///< takes sentences for the user
    };
    enum Status { Done = 0, Failed = 1, WrongUsage = 2 };

    explicit CommandRun(Surroundings surroundings) : m_around(std::move(surroundings)) { }

    /// Runs a command other than Start. Fails without a sentence when nobody reads the output any more.
    Status run(const CommandLine& line);

private:
    Status tryToRun(const CommandLine& line);
    Status list(bool asJson);
    Status exportTasks(const CommandLine& line);
    static void exportToFile(const CommandLine& line, Exchange& exchange, const DatabaseEngine& engine);
    Status importTasks(const CommandLine& line);
    void tellPlan(const ImportPlan& plan);
    /// Once more by another plan when the first is outdated and the other one is the same.
    void carryOut(const ImportPlan& told, Exchange& exchange, const std::function<ImportPlan()>& planAgain);
    void makeFolder();
    /// Whether a start has been there: the folder, and in one that is unpacked the data file.
    bool hasProgramFolder() const;
    DatabaseEngine engineOn(const QString& folder);
    DatabaseEngine engineOfTheUser();
    void say(const QString& text);
    void complain(const QString& text);

    Surroundings m_around;
    ForeignChanges m_foreign;
    Repeating m_repeating;
    /// Of a damaged file nothing is written over.
    bool m_dataFileIsSound = false;
};

/// The process of a command: runs it on the standard streams, in the language of the system, and returns its
/// exit status. Makes an application object that needs no display.
int runCommand(const CommandLine& line, int argc, char** argv, const Installation& installation,
    const QString& programFolder);
