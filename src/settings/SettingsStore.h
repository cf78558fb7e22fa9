#pragma once

#include "settings/SettingsRecord.h"

#include <QCoreApplication>

struct DatabaseEngine;

/// The store of the one-row table `settings`. All operations throw DatabaseError.
class SettingsStore
{
    Q_DECLARE_TR_FUNCTIONS(SettingsStore)

public:
    /// `engine` outlives this object.
    explicit SettingsStore(const DatabaseEngine& engine) : m_engine(&engine) { }

    /// The first row; a table without one is an error. A value that does not convert is left out
    /// (DatabaseEngine::unreadable), and that of a shipped data file stands for it.
    SettingsRecord read() const;
    /// Replaces the row by `settings`, then, once that is on the disk, `record` by `settings`. The skin's
    /// name goes into the statement as it stands: one with a single quote breaks it, and then the table is
    /// left without a row and `record` as it was.
    void save(const SettingsRecord& settings, SettingsRecord& record) const;

private:
    const DatabaseEngine* m_engine;
};
