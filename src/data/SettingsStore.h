#pragma once

#include "data/SettingsRecord.h"

#include <QCoreApplication>

struct DatabaseEngine;

/// The store of the one-row table `settings`. All operations throw DatabaseError.
class SettingsStore
{
    Q_DECLARE_TR_FUNCTIONS(SettingsStore)

public:
    /// `engine` outlives this object.
    explicit SettingsStore(const DatabaseEngine& engine) : m_engine(&engine) { }

    /// The first row; throws when there is none. A value that does not convert is reported
    /// (DatabaseEngine::unreadable) and replaced by the one in a shipped data file.
    SettingsRecord read() const;
    /// Replaces the row by `settings` and, once that is on the disk, assigns it to `record`. The skin's
    /// name is not escaped: with a single quote in it the insert fails, the table has no row and `record`
    /// is as it was.
    void save(const SettingsRecord& settings, SettingsRecord& record) const;

private:
    const DatabaseEngine* m_engine;
};
