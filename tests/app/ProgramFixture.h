#pragma once

#include "app/Program.h"
#include "app/frmMain.h"
#include "platform/GridView.h"
#include "platform/WaveBackend.h"
#include "support/MemoryRegistry.h"
#include "support/RecordedHelpWindow.h"
#include "support/RecordedReportWindow.h"
#include "support/ScriptedDialogs.h"
#include "support/TestDatabase.h"
#include "support/TestServices.h"

#include <QAction>
#include <QPointer>
#include <QPushButton>
#include <QTest>

/// Remembers what was played.
class RecordedWaves final : public WaveBackend
{
public:
    RecordedWaves(QStringList& played, int& stops) : m_played(played), m_stops(stops) { }
    void play(const QString& file) override { m_played.append(file); }
    void stopAll() override { ++m_stops; }

private:
    QStringList& m_played;
    int& m_stops;
};

/// The whole program over a data file of its own, on a machine that only remembers.
struct ProgramFixture {
    ProgramFixture()
        : program(Machine{database.engine(), dialogs, dialogs, dialogs, shell, registry,
            [this] { return std::make_unique<RecordedWaves>(played, stops); },
            [this] { return notificationArea; },
            [this](const WebPageOpener&) {
                helpWindow = new RecordedHelpWindow(helpLog);
                return helpWindow;
            },
            [this](ReportHost&) {
                auto window = std::make_unique<RecordedReportWindow>();
                reportWindow = window.get();
                return window;
            }})
    {
        QDir folder(database.folder());
        folder.mkpath(QStringLiteral("Skins"));
        QFile::copy(QStringLiteral(AMBERTASK_SHIPPED_SKINS "/Aqua.skf"),
            folder.filePath(QStringLiteral("Skins/Aqua.skf")));
    }
    ~ProgramFixture() { program.unload(); }

    void setting(const QString& column, int value) const
    {
        database.sql(QStringLiteral("update settings set %1=%2").arg(column).arg(value));
    }
    void start(bool firstStart = false)
    {
        program.start([firstStart] { return firstStart; });
    }
    frmMain& main() { return program.mainWindow(); }
    template <typename Control> Control* control(QWidget& window, const char* name)
    {
        return window.findChild<Control*>(QLatin1String(name));
    }
    QAction* menu(const char* name) { return main().findChild<QAction*>(QLatin1String(name)); }
    void press(QWidget& window, const char* name)
    {
        QTest::mouseClick(control<QPushButton>(window, name), Qt::LeftButton);
    }
    GridView* grid(QWidget& window) { return control<GridView>(window, "grdTasks"); }

    TestDatabase database;
    ScriptedDialogs dialogs;
    RecordedShell shell;
    MemoryRegistry registry;
    QStringList played;
    int stops = 0;
    bool notificationArea = true;
    QStringList helpLog;
    QPointer<RecordedHelpWindow> helpWindow;
    QPointer<RecordedReportWindow> reportWindow;
    Program program;
};
