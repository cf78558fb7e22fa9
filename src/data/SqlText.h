#pragma once

#include "system/Moment.h"

#include <QList>
#include <QString>
#include <initializer_list>

struct Repeat;

/// `text` with every single quote doubled, ready to stand between single quotes in a statement.
QString EscapeSqlText(const QString& text);

/// A bare date of the dialect: month/day/year without leading zeros, four-digit year ("1/31/2007").
QString sqlDate(Moment moment);
/// Date, a blank, and the 24-hour time with two-digit hours and minutes ("1/31/2007 09:05"). Seconds are
/// dropped.
QString sqlDateTime(Moment moment);
/// The moment as it is stored, between quotes; with its seconds.
QString sqlMoment(Moment moment);
/// The values of a row of repeats.
QString sqlRepeat(qint32 ofTask, const Repeat& repeat);
/// SQLite limits the length of a compiled statement (see Hardening.cpp).
inline constexpr qsizetype MostIdsOfAStatement = 1000;
/// The condition that tasks of those ids meet, of which there is one at least.
QString sqlTaskIsOneOf(const QList<qint32>& ids);
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
