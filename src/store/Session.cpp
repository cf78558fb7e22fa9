#include "store/Session.h"

#include "store/ChangeSet.h"
#include "store/DatabaseEngine.h"
#include "store/DatabaseError.h"
#include "store/Dialect.h"
#include "store/ForeignChanges.h"
#include "store/Hardening.h"
#include "store/ResultCodes.h"
#include "store/UnchangedFile.h"
#include "store/UnicodeCollation.h"
#include "system/Clock.h"
#include "system/FileReplace.h"
#include "system/Progress.h"

#include <QFileInfo>
#include <sqlite3.h>
#include <utility>

namespace
{

using Kind = DatabaseError::Kind;

/// SQLite runs so many virtual machine instructions in well under a millisecond.
constexpr int StepsOfProgress = 20000;
constexpr int BusyMilliseconds = 250;

QString shortened(const QString& statement)
{
    constexpr qsizetype Shown = 200;
    return statement.size() <= Shown ? statement : statement.left(Shown) + QStringLiteral("...");
}

} // namespace

Session::Session(QString path, const DatabaseEngine& engine) : m_path(std::move(path)), m_engine(&engine)
{
    try {
        openFile();
        harden();
        lookAtOthers(m_engine->foreign, m_database);
    } catch (...) {
        sqlite3_close_v2(m_database);
        throw;
    }
}

Session::~Session()
{
    releaseCursors();
    m_recorder.reset();
    sqlite3_close_v2(m_database);
}

void Session::openFile()
{
    // SQLite itself would take an empty file for a new database and report the other cases less clearly.
    const QFileInfo file(m_path);
    if (!file.exists()) {
        failToOpen(tr("it does not exist"));
    }
    if (file.isDir()) {
        failToOpen(tr("it is a folder"));
    }
    // SQLite would wait for the writer of a pipe, and no signal would end that.
    if (!file.isFile()) {
        failToOpen(FileError::tr("it is not a file"));
    }
    requireOrdinaryCompanions();
    if (file.size() == 0) {
        failToOpen(tr("it is empty"));
    }
    const int code = openDatabase(m_path, m_database, m_engine->isImmutable);
    if (m_database == nullptr) {
        failToOpen(tr("out of memory"));
    }
    check(code);
}

void Session::requireOrdinaryCompanions()
{
    const QString place = resolvedPath(m_path);
    for (const char* companion : {"-journal", "-wal", "-shm"}) {
        const QFileInfo file(place + QLatin1String(companion));
        if (file.exists() && !file.isFile()) {
            throw DatabaseError(
                Kind::Storage, FileError(file.filePath(), FileError::tr("it is not a file")).text());
        }
    }
}

void Session::check(int code)
{
    if (code != SQLITE_OK) {
        failToOpen(reason(code));
    }
}

void Session::harden()
{
    check(hardenConnection(m_database));
    check(sqlite3_busy_timeout(m_database, BusyMilliseconds));
    check(installUnicodeNoCase(m_database));
    check(sqlite3_create_function_v2(m_database, "now", 0,
        SQLITE_UTF8 | SQLITE_DETERMINISTIC | SQLITE_DIRECTONLY, this, answerNow, nullptr, nullptr, nullptr));
    check(sqlite3_set_authorizer(m_database, authorize, this));
    if (m_engine->progress != nullptr) {
        sqlite3_progress_handler(m_database, StepsOfProgress, tellProgress, this);
    }
    // Large sorts hold the user's texts: they stay in memory, out of the folder for temporary files. The
    // second pragma makes SQLite read the schema, so that a file that is no database is noticed here and an
    // interrupted operation is rolled back. EXTRA, not FULL: a commit ends with the removal of the journal,
    // and until the folder is flushed, as EXTRA does, a power cut would bring the journal back and undo an
    // operation that was reported as done (measured: 6.0 instead of 3.7 ms for an insert on a new
    // connection).
    check(executeOwn("PRAGMA temp_store=MEMORY; PRAGMA synchronous=EXTRA"));
    if (!flushesFolders()) {
        const QScopedValueRollback own(m_runsOwnStatement, true);
        check(emptyJournals(m_database));
    }
}

// An exception must not pass through SQLite: interrupt the statement, and `fail` rethrows it.
int Session::tellProgress(void* session)
{
    auto* self = static_cast<Session*>(session);
    try {
        self->m_engine->progress->advance(0, 0);
        return 0;
    } catch (...) {
        self->m_thrownByProgress = std::current_exception();
        return 1;
    }
}

int Session::authorize(
    void* session, int action, const char* first, const char* second, const char*, const char*)
{
    auto* self = static_cast<Session*>(session);
    if (self->m_runsOwnStatement) {
        return SQLITE_OK;
    }
    switch (action) {
    case SQLITE_INSERT:
    case SQLITE_UPDATE:
        self->m_written = first;
        return SQLITE_OK;
    case SQLITE_SELECT:
    case SQLITE_READ:
    case SQLITE_DELETE:
    case SQLITE_FUNCTION:
        return SQLITE_OK;
    case SQLITE_PRAGMA:
        return isReadingPragma(first, second) ? SQLITE_OK : SQLITE_DENY;
    default:
        return SQLITE_DENY;
    }
}

void Session::answerNow(sqlite3_context* context, int, sqlite3_value**)
{
    const std::string& now = static_cast<const Session*>(sqlite3_user_data(context))->m_now;
    sqlite3_result_text(context, now.data(), static_cast<int>(now.size()), SQLITE_TRANSIENT);
}

std::unique_ptr<Cursor> Session::start(const QString& statement)
{
    if (m_undone) {
        throw DatabaseError(Kind::Storage,
            tr("The data file \"%1\" failed before; the statement was not run: %2")
                .arg(m_path, shortened(statement)));
    }
    m_written.clear();
    auto cursor = std::make_unique<Cursor>(*this, prepare(statement));
    if (sqlite3_stmt_readonly(cursor->statement()) == 0) {
        begin();
    }
    if (!m_written.empty()) {
        requireEveryRecordStays(m_written);
    }
    m_now = storedText(m_engine->clock->now());
    return cursor;
}

sqlite3_stmt* Session::prepare(const QString& statement)
{
    const QByteArray utf8 = statement.toUtf8();
    const std::string sql = translateDialect({utf8.constData(), static_cast<std::size_t>(utf8.size())});
    if (sql.size() >= static_cast<std::size_t>(sqlite3_limit(m_database, SQLITE_LIMIT_SQL_LENGTH, -1))) {
        throw DatabaseError(Kind::Statement,
            tr("The statement is too long (%1 bytes): %2").arg(sql.size()).arg(shortened(statement)));
    }
    sqlite3_stmt* prepared = nullptr;
    const char* tail = nullptr;
    const int code =
        sqlite3_prepare_v2(m_database, sql.c_str(), static_cast<int>(sql.size()) + 1, &prepared, &tail);
    if (code != SQLITE_OK) {
        fail(code, statement);
    }
    if (prepared == nullptr) {
        throw DatabaseError(Kind::Statement, tr("The statement is empty."));
    }
    if (holdsStatement(tail)) {
        sqlite3_finalize(prepared);
        throw DatabaseError(
            Kind::Statement, tr("The text holds more than one statement: %1").arg(shortened(statement)));
    }
    return prepared;
}

qint64 Session::changedRows() const
{
    return sqlite3_changes64(m_database);
}

int Session::executeOwn(const char* sql, int (*row)(void*, int, char**, char**), void* context)
{
    return asOwn([&] { return sqlite3_exec(m_database, sql, row, context, nullptr); });
}

void Session::begin()
{
    if (sqlite3_get_autocommit(m_database) == 0) {
        return;
    }
    if (bool* known = m_engine->knownSound; known != nullptr && !*known) {
        requireSound();
        *known = true;
    }
    m_checkedTables.clear();
    const int code = executeOwn("BEGIN IMMEDIATE");
    if (code != SQLITE_OK) {
        failStorage(tr("The data file \"%1\" could not be written: %2.").arg(m_path, reason(code)));
    }
    lookAtOthers(m_engine->foreign, m_database);
    if (m_engine->copies != nullptr) {
        // Not before the lock: another process could change the file under the copy.
        m_engine->copies->aboutToChange(UnchangedFile(m_database));
    }
    if (m_engine->changes != nullptr) {
        m_recorder = std::make_unique<ChangeRecorder>(m_database);
    }
}

void Session::alter(const char* statements)
{
    begin();
    if (const int code = executeOwn(statements); code != SQLITE_OK) {
        fail(code, QString::fromUtf8(statements));
    }
}

void Session::apply(const ChangeSet& changes, const std::set<std::string>& tolerated)
{
    begin();
    for (const std::string& table : changes.tables()) {
        requireEveryRecordStays(table);
    }
    const int code = asOwn([&] { return applyChanges(m_database, changes, tolerated); });
    if (code == SQLITE_ABORT) {
        throw ChangedSinceError(tr("It has been changed since."));
    }
    if (code != SQLITE_OK) {
        failStorage(tr("The data file \"%1\" could not be written; nothing was stored: %2.")
                        .arg(m_path, reason(code)));
    }
}

void Session::requireSound()
{
    // Only damage of the file as a whole ("*** in ..."): an odd value in one record does not prevent
    // writing others.
    bool damaged = false;
    const auto note = [](void* found, int, char** texts, char**) {
        if (std::string_view(texts[0]).starts_with("*** in")) {
            *static_cast<bool*>(found) = true;
        }
        return 0;
    };
    const int code = executeOwn("PRAGMA quick_check", note, &damaged);
    if (code != SQLITE_OK || damaged) {
        failStorage(
            tr("The data file \"%1\" could not be written; nothing was stored: %2.")
                .arg(m_path, damaged ? QString::fromUtf8(sqlite3_errstr(SQLITE_CORRUPT)) : reason(code)));
    }
}

void Session::requireEveryRecordStays(const std::string& table)
{
    // Nobody changes the definitions while the transaction is open.
    if (m_checkedTables.count(table) > 0) {
        return;
    }
    int failure = SQLITE_OK;
    const bool may = asOwn([&] { return mayDropRecords(m_database, table, failure); });
    if (may || failure != SQLITE_OK) {
        failStorage(tr("The data file \"%1\" could not be written; nothing was stored: %2.")
                        .arg(m_path,
                            may ? tr("a rule in its table \"%1\" could remove records")
                                      .arg(QString::fromStdString(table))
                                : reason(failure)));
    }
    m_checkedTables.insert(table);
}

void Session::commit()
{
    if (m_undone) {
        throw DatabaseError(
            Kind::Storage, tr("The data file \"%1\" failed before; nothing was stored.").arg(m_path));
    }
    if (sqlite3_get_autocommit(m_database) != 0) {
        return;
    }
    ChangeSet changed;
    int code = SQLITE_OK;
    if (m_recorder != nullptr) {
        code = asOwn([&] { return m_recorder->read(changed); });
        m_recorder.reset();
    }
    if (code == SQLITE_OK) {
        code = executeOwn("COMMIT");
    }
    if (code != SQLITE_OK && !comesAfterTheCommit(sqlite3_extended_errcode(m_database))) {
        failStorage(tr("The data file \"%1\" could not be written; nothing was stored: %2.")
                        .arg(m_path, reason(code)));
    }
    if (m_engine->foreign != nullptr && hasWritten(m_database)) {
        m_engine->foreign->addOwn();
    }
    if (!changed.isEmpty()) {
        m_engine->changes->append(changed);
    }
}

qint64 Session::insertedId() const
{
    return sqlite3_last_insert_rowid(m_database);
}

void Session::undo()
{
    m_undone = true;
    if (sqlite3_get_autocommit(m_database) == 0) {
        executeOwn("ROLLBACK");
    }
}

void Session::releaseCursors()
{
    for (Cursor* cursor : std::exchange(m_cursors, {})) {
        cursor->release();
    }
}

void Session::failToOpen(const QString& why)
{
    throw DatabaseError(Kind::Storage, tr("The data file \"%1\" could not be opened: %2.").arg(m_path, why));
}

void Session::failStorage(const QString& text)
{
    undo();
    if (m_thrownByProgress) {
        std::rethrow_exception(std::exchange(m_thrownByProgress, nullptr));
    }
    throw DatabaseError(Kind::Storage, text);
}

void Session::fail(int code, const QString& statement)
{
    if (isStatementError(code) && !m_thrownByProgress) {
        throw DatabaseError(
            Kind::Statement, tr("The statement failed: %1.\n%2").arg(reason(code), shortened(statement)));
    }
    failStorage(tr("The data file \"%1\" failed at the statement\n%2\n: %3.")
                    .arg(m_path, shortened(statement), reason(code)));
}

QString Session::reason(int code) const
{
    QString message = QString::fromUtf8(sqlite3_errmsg(m_database));
    switch (code & 0xff) {
    case SQLITE_BUSY:
    case SQLITE_LOCKED:
        return tr("another program is using it (%1)").arg(message);
    case SQLITE_CANTOPEN:
    case SQLITE_IOERR: {
        const int systemCode = sqlite3_system_errno(m_database);
        return systemCode == 0 ? message
                               : QStringLiteral("%1 (%2)").arg(message, qt_error_string(systemCode));
    }
    default:
        return message;
    }
}
