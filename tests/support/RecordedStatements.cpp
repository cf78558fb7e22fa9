#include "support/RecordedStatements.h"

#include <utility>

void RecordedStatements::connectionOpened(const QString& connectionString)
{
    m_connectionString = connectionString;
    ++m_opened;
}

void RecordedStatements::statementExecuted(QStringView statement)
{
    m_statements.append(statement.toString());
}

void RecordedStatements::connectionClosed()
{
    ++m_closed;
}

QStringList RecordedStatements::take()
{
    return std::exchange(m_statements, {});
}
