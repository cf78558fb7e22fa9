#pragma once

#include <QString>

/// `text` for a tool tip, letter for letter: a tool tip whose text looks like markup would be shown as such.
/// Long lines are wrapped, line breaks stay, what goes on for thousands of letters is cut. Empty for an empty
/// text.
QString plainToolTip(const QString& text);
