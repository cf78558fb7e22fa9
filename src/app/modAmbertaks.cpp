#include "app/modAmbertaks.h"

#include "app/Application.h"
#include "app/CommandRun.h"
#include "app/DisplayGate.h"
#include "app/Program.h"
#include "app/drTasks.h"
#include "categories/PictureReader.h"
#include "data/RepeatRules.h"
#include "exchange/Exchange.h"
#include "system/Clock.h"
#include "system/FileReplace.h"
#include "system/FormerCopies.h"
#include "system/Installation.h"
#include "system/Language.h"
#include "system/MMControl.h"
#include "system/Modules.h"
#include "system/ProgramFolder.h"
#include "system/Registry.h"
#include "system/Shell.h"
#include "system/SingleInstance.h"
#include "system/TerminationSignals.h"
#include "widgets/AccessibleControls.h"
#include "widgets/FileDialogs.h"
#include "widgets/MessageBoxes.h"
#include "widgets/ScreenErrorReport.h"
#include "widgets/TrayIcon.h"
#include "widgets/WindowManager.h"

#include <QSessionManager>
#include <QStyleFactory>
#include <optional>

namespace
{

/// The real machine on which the program runs.
struct RealMachine {
    RealMachine(const Installation& installation, const QString& programFolder, ErrorReport& errorReport)
        : shippedFolder(installation.shippedFolder),
          modules(installation.moduleFolder,
              {QLatin1String(HelpModule), QLatin1String(ReportModule), QLatin1String(ExchangeModule),
                  QLatin1String(RepeatModule)},
              {QLatin1String(SoundProgram), QLatin1String(PictureProgram)}),
          engine{programFolder, &clock, nullptr, nullptr, &dataFileIsSound}, errors(errorReport)
    {
    }

    Machine machine()
    {
        return {engine, messages, fileDialogs, errors, shell, *registry,
            [this] { return makeWaveBackend(modules); }, TrayIcon::isAreaAvailable,
            [this](HelpHost& host) { return loadHelpWindow(modules, host); },
            [this](ReportHost& host) { return loadReportWindow(modules, host); },
            [this] { return loadExchange(modules); },
            [this] { return modules.program(QLatin1String(PictureProgram)); }, shippedFolder,
            pathIn(userStateFolder(), QStringLiteral("window")),
            [this] {
                return loadRepeatRules(modules);
            }};
    }

    QString shippedFolder;
    Modules modules;
    SystemClock clock;
    bool dataFileIsSound = false;
    DatabaseEngine engine;
    ScreenMessageBoxes messages;
    ScreenFileDialogs fileDialogs;
    DesktopShell shell;
    std::unique_ptr<Registry> registry = makeSystemRegistry();
    ErrorReport& errors;
};

/// Why the program folder could not be made; empty when it exists.
QString prepareProgramFolder(const Installation& installation, const QString& programFolder)
{
    try {
        makeProgramFolder(installation, programFolder);
    } catch (const FileError& error) {
        return error.text();
    }
    return {};
}

/// `hindrance` is the reason not to start; empty for none.
int runInstance(Application& application, const Installation& installation, const QString& programFolder,
    const QString& hindrance)
{
    Program* running = nullptr;
    ScreenErrorReport errors([&running] { running->end(); });
    RealMachine real(installation, programFolder, errors);
    Program program(real.machine());
    running = &program;

    const TerminationSignals terminationSignals;
    QObject::connect(&terminationSignals, &TerminationSignals::terminationRequested, &program, &Program::end);
    QObject::connect(&application, &Application::endRequested, &program, &Program::end);
    QObject::connect(&application, &Application::handlerFailed, &program,
        [&errors](const QString& text) { errors.report(text); });
    QObject::connect(&program, &Program::endRequested, &application, [] {
        cancelSystemDialogs();
        QCoreApplication::exit(0);
    });

    try {
        if (!hindrance.isEmpty()) {
            throw RuntimeError(hindrance);
        }
        program.start(noteFirstStart);
    } catch (const RuntimeError& error) {
        ScreenErrorReport::reportFailedStart(error.text());
        return 1;
    }
    // The program may have been asked to end during its start, when there was no event loop to leave yet.
    const int status = program.isEnding() ? 0 : QCoreApplication::exec();
    program.unload();
    return status;
}

/// The reason not to start, in the user's language; empty for none.
QString hindranceOf(const QString& folderFailure, const SingleInstance& guard)
{
    if (!folderFailure.isEmpty()) {
        return QCoreApplication::translate("modAmbertaks", "The program folder could not be made.\n%1")
            .arg(folderFailure);
    }
    const QString failure = guard.failure();
    return failure.isEmpty()
        ? QString()
        : QCoreApplication::translate(
            "modAmbertaks", "The program folder could not be kept from a second copy of the program.\n%1")
              .arg(failure);
}

/// What stands behind the program's name.
QStringList argumentsOf(int argc, char** argv)
{
    QStringList arguments;
    for (int i = 1; i < argc; ++i) {
        arguments.append(QString::fromLocal8Bit(argv[i]));
    }
    return arguments;
}

} // namespace

int runAmbertask(int argc, char** argv)
{
    const CommandLine line = CommandLine::read(argumentsOf(argc, argv));
    const Installation installation = runningInstallation();
    const QString programFolder = programFolderOf(installation, userDataFolder());
    if (line.command != CommandLine::Command::Start) {
        return runCommand(line, argc, argv, installation, programFolder);
    }
    const QString folderFailure = prepareProgramFolder(installation, programFolder);
    // Before anything else exists: a second copy must leave without a trace.
    SingleInstance guard(programFolder);
    if (guard.otherCopyRuns()) {
        return 0;
    }
    if (guard.failure().isEmpty()) {
        pointToExecutable(installation, programFolder);
        removeFormerCopies(installation, programFolder);
    }
    std::optional<DisplayGate> gate(std::in_place, [&guard] { guard.release(); });
    Application application(argc, argv);
    gate.reset();
    QCoreApplication::setApplicationName(QLatin1String(ProductName));
    installAccessibleControls();
    QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    QGuiApplication::setDesktopFileName(QLatin1String(DesktopEntryName));
    // Only the entry that the settings page writes starts the program with the session; no session restore.
    QObject::connect(&application, &QGuiApplication::saveStateRequest, &application,
        [](QSessionManager& session) { session.setRestartHint(QSessionManager::RestartNever); });
    // Only "Exit" ends the program.
    QApplication::setQuitOnLastWindowClosed(false);
    Language language;
    language.speakAsTheSystem();
    return runInstance(application, installation, programFolder, hindranceOf(folderFailure, guard));
}
