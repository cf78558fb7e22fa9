#pragma once

#include "tests/app/SkinnedProgram.h"

#include <functional>

/// What is done with each window that is opened; the window is closed afterwards.
using Visit = std::function<void(const QString& name, QWidget& window)>;

/// Opens every window of the program in turn, in every state that looks different (pages, a reminder
/// switched on, tabs of the help, boxes), and passes each to `visit` with a name.
void visitEveryWindow(SkinnedProgram& program, const Visit& visit);

/// Handles pending layouts and paints, and what those cause.
void settleWindows();
