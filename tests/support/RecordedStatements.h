#pragma once

#include "store/DatabaseEngine.h"

#include <QStringList>

/// Keeps what the program asks of its data file, in order.
class RecordedStatements final : public StatementListener
{
public:
    void connectionOpened(const QString& connectionString) override;
    void statementExecuted(QStringView statement) override;
    void connectionClosed() override;

    /// The statements since the last call, in the program's own words.
    QStringList take();
    /// Statements that contain `part` fail with a RuntimeError from now on; none when it is empty.
    void failAt(const QString& part) { m_failing = part; }
    int opened() const { return m_opened; }
    int closed() const { return m_closed; }
    QString lastConnectionString() const { return m_connectionString; }

private:
    QStringList m_statements;
    QString m_connectionString;
    QString m_failing;
    int m_opened = 0;
    int m_closed = 0;
};
