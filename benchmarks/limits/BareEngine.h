#pragma once

#include <QString>

// The least that SQLite can do it in: the same statements through its C interface, on a new connection
// each. The references of the benchmarks; they throw std::runtime_error.

/// Runs the query and reads every column of every row. `now` is what now() returns. Returns the number of
/// rows.
int bareScan(const QString& file, const QString& query, const QString& now = {});
/// Runs the statements in one transaction that is as durable as the program's.
void bareWrite(const QString& file, const QStringList& statements, const QString& now = {});
