#pragma once

#include <QString>

class QWidget;

/// The value of a control as text: of an edit its text, of a combo its current text, of a check box "0" or
/// "1", of a picker the shown date or time, of a button "False". Empty for null and for other kinds.
QString valueOf(const QWidget* control);
