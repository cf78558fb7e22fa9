#pragma once

#include "store/Connection.h"

/// Knows the name of the data file and hands out connections to it.
class ClsDatabase
{
public:
    /// `engine` outlives this object and every connection it hands out.
    explicit ClsDatabase(const DatabaseEngine& engine);

    /// The name of the data file, relative to the program folder; "data.dat" at first.
    QString FileName() const { return m_fileName; }
    void setFileName(const QString& name) { m_fileName = name; }

    /// A new connection to the data file, not yet open.
    Connection Connect() const;

private:
    const DatabaseEngine* m_engine;
    QString m_fileName;
};
