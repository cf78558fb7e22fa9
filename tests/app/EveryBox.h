#pragma once

#include "tests/app/EveryWindow.h"

/// Opens each kind of box that the program makes itself, over `owner`, and shows it to `visit`: questions,
/// messages with each picture, error reports, the box of a long operation.
void visitEveryBox(QWidget& owner, const Visit& visit);

/// The same with the boxes of Qt that the program opens: for opening and saving files and for
/// printing.
void visitQtBoxes(QWidget& owner, const Visit& visit);

/// Opens what drops down from the windows of the program, and shows it to `visit`: the lists of all windows,
/// the menu of usual moments, the menus that edit.
void visitPopUps(SkinnedProgram& program, const Visit& visit);
