#include "support/RecordedStatements.h"

#include "system/RuntimeError.h"

#include <utility>

void RecordedStatements::connectionOpened(const QString& connectionString)
{
    m_connectionString = connectionString;
    ++m_opened;
}

void RecordedStatements::statementExecuted(QStringView statement)
{
    m_statements.append(statement.toString());
    if (!m_failing.isEmpty() && statement.contains(m_failing)) {
        throw RuntimeError(QStringLiteral("a statement about %1 fails").arg(m_failing));
    }
}

void RecordedStatements::connectionClosed()
{
    ++m_closed;
}

QStringList RecordedStatements::take()
{
    return std::exchange(m_statements, {});
}
