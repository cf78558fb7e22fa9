#pragma once

#include "exchange/ByteLines.h"

#include <QString>
#include <memory>
#include <string>
#include <vector>

/// A row of a CSV file.
struct CsvRow {
    qint64 line = 0; ///< where it begins
    std::vector<std::string> fields;
    QString problem; ///< why it cannot be read, a sentence; empty for a whole one
};

/// Reads a CSV file row by row; however long a row is, it is bounded. Empty lines are no rows.
class CsvRows
{
public:
    static constexpr std::size_t MostFields = 1000;
    static constexpr std::size_t MostBytes = std::size_t{64} * 1024 * 1024;

    /// Both outlive the object; `progress` may be null.
    CsvRows(QIODevice& device, Progress* progress);
    ~CsvRows();
    CsvRows(const CsvRows&) = delete;
    CsvRows& operator=(const CsvRows&) = delete;

    /// False at the end. Throws FileError when the device cannot be read, and what the progress throws. The
    /// first row decides what separates the fields: a comma, a semicolon or a tab, whichever it has most of.
    bool next(CsvRow& row);

private:
    struct Parser;
    void parseLine();
    void finish();
    void giveUp(const QString& problem);

    ByteLines m_lines;
    std::unique_ptr<Parser> m_parser;
    std::string m_line;
    bool m_atEnd = false;
};

/// Appends a row to `out`, with all fields in quotes.
void appendCsvRow(std::string& out, const std::vector<std::string_view>& fields);
