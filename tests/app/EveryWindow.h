#pragma once

#include "tests/app/SkinnedProgram.h"

#include <functional>

/// What is done with each window that is opened; the window is closed afterwards.
using Visit = std::function<void(const QString& name, QWidget& window)>;

/// Opens every window of the program in turn, in every state that looks different (pages, a reminder switched
/// on, the tabs of the help, boxes), and shows each to `visit` under a name.
void visitEveryWindow(SkinnedProgram& program, const Visit& visit);

/// Lets what was asked of the windows happen: layouts, paints, and what those ask for.
void settleWindows();
