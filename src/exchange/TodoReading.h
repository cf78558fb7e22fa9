#pragma once

#include "exchange/CalendarParts.h"
#include "exchange/FileTask.h"
#include "exchange/FileZones.h"

#include <QString>

/// What a VTODO says, or why it cannot be read.
struct ReadTodo {
    FileTask task;
    QString problem; ///< a sentence; empty when there is none. Then the task has at most a name.
    bool isException = false; ///< of a repeating task, for one of its days: no task of its own
};

/// Reads a VTODO. `zones` are those of the file before it; `now` decides which of several reminders is the
/// next one; without `repeating` nothing repeats. Throws RuntimeError when the rules cannot be loaded.
ReadTodo readTodo(const CalendarPart& todo, FileZones& zones, Moment now, Repeating* repeating = nullptr);
