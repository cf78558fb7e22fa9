#include "store/Connection.h"

#include "store/DatabaseError.h"
#include "store/Session.h"

#include <utility>

namespace
{

const QLatin1String Prefix("Provider=Microsoft.Jet.OLEDB.4.0;Data Source= ");

[[noreturn]] void refuse(const QString& text)
{
    throw DatabaseError(DatabaseError::Kind::Storage, text);
}

} // namespace

Connection::Connection(const DatabaseEngine& engine, QString connectionString)
    : m_engine(&engine), m_connectionString(std::move(connectionString))
{
}

Connection::Connection(Connection&&) noexcept = default;

Connection& Connection::operator=(Connection&& other) noexcept
{
    std::swap(m_engine, other.m_engine);
    std::swap(m_connectionString, other.m_connectionString);
    std::swap(m_session, other.m_session);
    return *this;
}

Connection::~Connection()
{
    try {
        close();
    } catch (const DatabaseError&) {
        // Callers that need to know have called close() before.
    }
}

Connection::State Connection::state() const
{
    return m_session == nullptr ? State::Closed : State::Open;
}

void Connection::open(const QString& user, const QString& password, int)
{
    if (m_session != nullptr) {
        refuse(tr("The connection is open already."));
    }
    if (!user.isEmpty() || !password.isEmpty()) {
        refuse(tr("The data file knows no users and no passwords."));
    }
    if (!m_connectionString.startsWith(Prefix)) {
        refuse(tr("The connection string \"%1\" names no data file.").arg(m_connectionString));
    }
    m_session = std::make_unique<Session>(m_connectionString.mid(Prefix.size()), *m_engine);
    if (m_engine->listener != nullptr) {
        m_engine->listener->connectionOpened(m_connectionString);
    }
}

RecordSet Connection::execute(const QString& statement)
{
    if (m_session == nullptr) {
        refuse(tr("The connection to the data file is not open."));
    }
    if (m_engine->listener != nullptr) {
        m_engine->listener->statementExecuted(statement);
    }
    return RecordSet(m_session->start(statement));
}

void Connection::beginWriting()
{
    m_session->begin();
}

void Connection::alter(const char* statements)
{
    m_session->alter(statements);
}

void Connection::apply(const ChangeSet& changes, const std::set<std::string>& tolerated)
{
    m_session->apply(changes, tolerated);
}

qint64 Connection::insertedId() const
{
    return m_session == nullptr ? 0 : m_session->insertedId();
}

qint64 Connection::changedRows() const
{
    return m_session->changedRows();
}

void Connection::commit()
{
    if (m_session == nullptr) {
        refuse(tr("The connection to the data file is not open."));
    }
    m_session->commit();
}

void Connection::close()
{
    if (m_session == nullptr) {
        return;
    }
    const std::unique_ptr<Session> session = std::move(m_session);
    if (m_engine->listener != nullptr) {
        m_engine->listener->connectionClosed();
    }
    session->releaseCursors();
    if (!session->isUndone()) {
        session->commit();
    }
}

void Connection::abandon()
{
    if (m_session == nullptr) {
        return;
    }
    m_session.reset();
    if (m_engine->listener != nullptr) {
        m_engine->listener->connectionClosed();
    }
}
