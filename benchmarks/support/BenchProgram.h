#pragma once

#include "app/Program.h"
#include "app/TasksPage.h"
#include "support/MemoryRegistry.h"
#include "support/ScriptedDialogs.h"
#include "support/TaskFile.h"
#include "support/TestServices.h"
#include "widgets/GridView.h"

#include <QApplication>
#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QStyleFactory>

/// The whole program on the data file of a benchmark, with a recording machine, its window on the screen.
struct BenchProgram {
    explicit BenchProgram(TaskFile& file, ReportWindowFactory reportWindow = {})
        : program(Machine{.engine = file.engine(),
            .messages = dialogs,
            .fileDialogs = dialogs,
            .errors = dialogs,
            .shell = shell,
            .registry = registry,
            .waveBackend = {},
            .hasNotificationArea = [] { return true; },
            .helpWindow = {},
            .reportWindow = std::move(reportWindow)})
    {
        QDir(file.folder()).mkpath(QStringLiteral("Skins"));
        for (const char* skin : {"Aqua", "Midnight"}) {
            const QString name = QStringLiteral("/%1.skf").arg(QLatin1String(skin));
            QFile::copy(QStringLiteral(AMBERTASK_SHIPPED_SKINS) + name,
                file.folder() + QStringLiteral("/Skins") + name);
        }
        program.start([] { return false; });
        program.loadDialogs();
        QCoreApplication::processEvents();
    }
    ~BenchProgram() { program.unload(); }
    BenchProgram(const BenchProgram&) = delete;
    BenchProgram& operator=(const BenchProgram&) = delete;

    GridView* list() { return control<GridView>(program.mainWindow(), "grdTasks"); }
    template <typename Control> static Control* control(const QWidget& window, const char* name)
    {
        return window.findChild<Control*>(QLatin1String(name));
    }

    ScriptedDialogs dialogs;
    RecordedShell shell;
    MemoryRegistry registry;
    Program program;
};
