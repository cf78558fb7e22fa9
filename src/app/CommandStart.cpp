#include "app/CommandLine.h"
#include "app/CommandRun.h"
#include "exchange/Exchange.h"
#include "system/Clock.h"
#include "system/Installation.h"
#include "system/Language.h"
#include "system/Modules.h"
#include "system/StandardStreams.h"

#include <QCoreApplication>
#include <QFile>
#include <cstdio>

int runCommand(const CommandLine& line, int argc, char** argv, const Installation& installation,
    const QString& programFolder)
{
    // What Qt has to say of a locale is nothing for whoever runs a command.
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});
    QCoreApplication application(argc, argv);
    Language language;
    language.speakAsTheSystem();
    const SystemClock clock;
    Modules modules(installation.moduleFolder, {QLatin1String(ExchangeModule)});
    OutputStream output;
    QFile errors;
    errors.open(stderr, QIODevice::WriteOnly | QIODevice::Unbuffered);
    const auto exchange = [&modules] {
        return loadExchange(modules);
    };
    return CommandRun({installation, programFolder, clock, exchange, output, errors}).run(line);
}
