#pragma once

#include "settings/SkinHeader.h"

/// The style sheet `sheet`, whose first line has the number `firstLine`, with its "$token"s replaced by
/// colours. Refuses what the program cannot vouch for: an unclosed comment, string or rule, at-rules,
/// pictures and other files, properties set on controls, and every rule by which a check mark, a radio dot or
/// an arrow would vanish. Throws SkinLineError.
QString expandedSheet(QStringView sheet, int firstLine, const SkinColors& colors);
