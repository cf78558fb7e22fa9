#pragma once

#include "exchange/CsvRows.h"
#include "exchange/FileTask.h"

#include <QString>
#include <string>
#include <vector>

/// The header line of a CSV file of tasks.
void appendCsvHeader(std::string& out);
void appendCsvTask(std::string& out, const TaskRecord& task);

/// A task of a CSV file, or why it cannot be read.
struct ReadCsvTask {
    FileTask task;
    QString problem; ///< a sentence; empty when there is none
};

/// Reads the rows of a CSV file with whatever columns it has.
class CsvColumns
{
public:
    /// `shortDate` is the form of dates other than the ISO one, as QLocale::toDate() takes it. Throws
    /// RuntimeError when the header has no column for the name of a task.
    CsvColumns(const CsvRow& header, QString shortDate);

    ReadCsvTask read(const CsvRow& row) const;

private:
    std::vector<int> m_columns; ///< for each field of a row its meaning, -1 for none
    QString m_shortDate;
};
