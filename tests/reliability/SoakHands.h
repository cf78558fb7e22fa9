#pragma once

#include "SoakWorld.h"

#include <QDir>

/// Does with the real program, through its windows, what a step says. `outcome` is what the model predicts of
/// it. Backups lie in `backups`. Throws std::runtime_error when a window does not do as asked.
void perform(
    RunningProgram& program, const Step& step, const SoakWorld::Outcome& outcome, const QDir& backups);
/// The file of a backup.
QString backupFile(const QDir& backups, const QString& slot);
/// What was played and started since the last call does not agree with the prediction, or the alert does not
/// list what it should: a text that says so.
QString complaintAbout(RunningProgram& program, const SoakWorld& world, const SoakWorld::Outcome& outcome);

/// The part of a run that is to be killed: starts the program on what lies in the folders, does `steps`
/// steps, and says on the standard output when each begins and ends. The result is an exit status.
int performUntilKilled(const QStringList& arguments);
