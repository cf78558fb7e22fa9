#pragma once

class QWidget;

// A style sheet that is taken off leaves traces on controls: Qt forgets the limits of size that a
// control had of its own, and leaves the font of a control on what the control is made of.

/// Before a sheet styles `widget`: notes what the sheet may overwrite.
void noteOwnSizes(QWidget& widget);
/// After a sheet has been taken off `widget`: gives back what was noted, removes what was left.
void removeSheetTraces(QWidget& widget);
