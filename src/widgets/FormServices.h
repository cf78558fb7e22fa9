#pragma once

#include <functional>

class CheckerTimer;
class Clock;
class ErrorReport;
class FileDialogs;
class ImageList;
class MessageBoxes;
class ProgramFiles;
class Shell;
class UndoHistory;
struct DatabaseEngine;

/// What windows need from the rest of the program. Nothing is owned; everything outlives the windows.
struct FormServices {
    const DatabaseEngine& engine;
    const Clock& clock;
    MessageBoxes& messages;
    FileDialogs& fileDialogs;
    ErrorReport& errors;
    Shell& shell;
    CheckerTimer& checkerTimer;
    /// The pictures of categories, statuses, priorities and reminders; `LoadCategories` appends custom
    /// ones.
    ImageList& imgLstCategories;
    /// The setting `always_on_top`.
    std::function<bool()> alwaysOnTop;
    const ProgramFiles& files;
    /// Runs the changes that the user can take back.
    UndoHistory& undo;
};
