#pragma once

#include "data/UndoHistory.h"
#include "support/ScriptedDialogs.h"
#include "support/TestDatabase.h"
#include "system/ProgramFiles.h"
#include "system/Shell.h"
#include "widgets/CheckerTimer.h"
#include "widgets/FormServices.h"
#include "widgets/ImageList.h"

#include <QStringList>

/// Remembers what was opened and started.
class RecordedShell final : public Shell
{
public:
    void openVendorPage(const QString& pathAndQuery) override { pages.append(pathAndQuery); }
    void openWebPage(const QString& address) override { webPages.append(address); }
    bool startNormal(const QString& file) override
    {
        startedNormal.append(file);
        return startSucceeds;
    }
    bool startMinimized(const QString& file) override
    {
        started.append(file);
        return startSucceeds;
    }
    QStringList pages;
    QStringList webPages;
    QStringList startedNormal; ///< in a normal window
    QStringList started; ///< minimized
    bool startSucceeds = true;
};

/// Remembers how the checker's timer was switched.
class RecordedCheckerTimer final : public CheckerTimer
{
public:
    void setCheckerEnabled(bool on) override
    {
        enabled = on;
        switches.append(on);
    }
    bool enabled = true;
    QList<bool> switches;
};

/// All that a form asks of the program, for a test: real database, stepped clock, scripted dialogs.
struct TestServices {
    TestServices();

    TestDatabase database;
    ScriptedDialogs dialogs;
    RecordedShell shell;
    RecordedCheckerTimer checkerTimer;
    ImageList images; ///< 21 pictures, all different
    bool alwaysOnTop = false;
    ProgramFiles files; ///< all in the folder of the database
    UndoHistory undo;
    FormServices services;
};
