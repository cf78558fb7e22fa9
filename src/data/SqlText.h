#pragma once

#include "system/Moment.h"

#include <QString>
#include <initializer_list>

/// `text` with every single quote doubled, ready to stand between single quotes in a statement.
QString EscapeSqlText(const QString& text);

/// A bare date of the dialect: month/day/year without leading zeros, four-digit year ("1/31/2007").
QString sqlDate(Moment moment);
/// Date, a blank, and the 24-hour time with two-digit hours and minutes ("1/31/2007 09:05"). Seconds are
/// dropped.
QString sqlDateTime(Moment moment);
/// "1" or "0".
QString sqlFlag(bool flag);

/// A marker such as "<task_name/>" and the text that replaces it.
struct Marker {
    QStringView marker;
    QString value;
};

/// `pattern` with every occurrence of every marker replaced. The pattern is scanned once: marker text
/// within a value is inserted as it is. Case-sensitive.
QString fillMarkers(QStringView pattern, std::initializer_list<Marker> markers);
