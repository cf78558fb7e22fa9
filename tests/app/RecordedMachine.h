#pragma once

#include "app/Program.h"
#include "data/RepeatRules.h"
#include "support/MemoryRegistry.h"
#include "support/RecordedHelpWindow.h"
#include "support/RecordedReportWindow.h"
#include "support/ScriptedDialogs.h"
#include "support/TestDatabase.h"
#include "support/TestServices.h"
#include "system/WaveBackend.h"
#include "tests/exchange/window/RecordedExchange.h"

#include <QDir>
#include <QFile>
#include <QPointer>

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

/// A machine that only records what it is asked for, with a temporary program folder. It outlives the
/// programs that run on it.
struct RecordedMachine {
    RecordedMachine() { addSkin(); }
    /// With an existing program folder, which is not removed.
    explicit RecordedMachine(const QString& programFolder) : database(programFolder) { addSkin(); }

    void addSkin() const
    {
        QDir folder(database.folder());
        folder.mkpath(QStringLiteral("Skins"));
        QFile::copy(QStringLiteral(AMBERTASK_SHIPPED_SKINS "/Aqua.skf"),
            folder.filePath(QStringLiteral("Skins/Aqua.skf")));
    }

    /// `shippedFolder` is where an installed program finds what is not in its program folder.
    /// `notifications` is given where windows cannot come up by themselves.
    Machine machine(const QString& shippedFolder = {}, const NotificationsFactory& notifications = {})
    {
        return {database.engine(), dialogs, dialogs, dialogs, shell, registry,
            [this] { return std::make_unique<RecordedWaves>(played, stops); },
            [this] { return notificationArea; },
            [this](HelpHost&) {
                helpWindow = new RecordedHelpWindow(helpLog);
                return helpWindow;
            },
            [this](ReportHost& host) {
                reportHost = &host;
                auto window = std::make_unique<RecordedReportWindow>();
                reportWindow = window.get();
                return window;
            },
            [this] { return std::make_unique<RecordedExchange>(exchange); }, {}, shippedFolder, {},
            notifications};
    }
    void setting(const QString& column, int value) const
    {
        database.sql(QStringLiteral("update settings set %1=%2").arg(column).arg(value));
    }

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
    ReportHost* reportHost = nullptr; ///< of that window
    RecordedExchange::Log exchange;
};
