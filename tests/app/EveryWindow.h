#pragma once

#include "tests/app/SkinnedProgram.h"

#include <functional>

/// Opens every window of the program in turn, in every state that looks different (pages, a reminder switched
/// on, the tabs of the help, a question), and shows each to `visit` under a name.
void visitEveryWindow(
    SkinnedProgram& program, const std::function<void(const QString& name, QWidget& window)>& visit);
