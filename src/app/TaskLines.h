#pragma once

#include <QByteArray>
#include <QString>

struct TaskRecord;

// How the command line writes tasks. The fields are the columns of the table `tasks` in their order, with
// their names, and "category", the name of the category; moments are "YYYY-MM-DD HH:MM:SS".

/// The text on one line of a terminal: a backslash is doubled, tab and line breaks become \t, \n and \r, and
/// other control characters \u001b and so on, as in JSON; everything else stays as it is.
QString onOneLine(const QString& text);

/// The names of the fields, with tabs between them and a line feed; in UTF-8, as all of these.
QByteArray tabbedNames();
/// The fields on one line; flags are 0 and 1.
QByteArray tabbedLine(const TaskRecord& task);
/// The fields as a JSON object on one line, without a line feed; flags are true and false.
QByteArray jsonObject(const TaskRecord& task);
