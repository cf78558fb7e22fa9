#pragma once

#include <QtGlobal>
#include <optional>

struct sqlite3;

/// How many commits the data file counts, up to what 32 bits hold; none when it does not count. Sends no
/// statement, opens no other handle to the file and takes no lock: what another process is just about to
/// commit is counted or not.
std::optional<quint32> commitsInFile(sqlite3* database);
/// Whether pages were written through this handle since the last call. A transaction that has changed nothing
/// is not counted by the file.
bool hasWritten(sqlite3* database);

/// Tells what other processes have changed in the data file from what this one has. SQLite counts the
/// commits in the head of the file; those that are not this process's own are others'. One thread.
class ForeignChanges
{
public:
    /// The counter of the file as a connection has found it; none when it does not count.
    void look(std::optional<quint32> commits);
    /// This process has changed the file by a commit.
    void addOwn()
    {
        ++m_own;
        ++m_state;
    }

    /// Another number after every commit, own ones and those of others that a connection has seen.
    quint32 state() const { return m_state; }

    /// How many commits of others there have been, as far as a connection has looked, from any number on.
    quint32 latest() const { return m_latest; }
    /// Whether others have changed the file since the state that was shown last; the first look is at that
    /// state.
    bool arePending() const { return m_shown && *m_shown != m_latest; }
    /// What is shown was read when `latest()` was `commits`, or later.
    void setShown(quint32 commits) { m_shown = commits; }

private:
    quint32 m_own = 0;
    quint32 m_state = 0;
    quint32 m_latest = 0;
    std::optional<quint32> m_shown;
};

/// Looks at the file of that connection where `foreign` is not null.
void lookAtOthers(ForeignChanges* foreign, sqlite3* database);
