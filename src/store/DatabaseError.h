#pragma once

#include "system/RuntimeError.h"

/// A failure of the data file, of a statement or of a value read from it.
class DatabaseError : public RuntimeError
{
public:
    enum class Kind {
        Statement, ///< the statement is malformed or a constraint refuses it
        Storage, ///< the file is missing, locked, full, damaged or unreadable
        Conversion ///< a value that does not fit the type it is read as, a field that does not exist
    };
    DatabaseError(Kind kind, const QString& text) : RuntimeError(text), m_kind(kind) { }
    Kind kind() const { return m_kind; }

private:
    Kind m_kind;
};

/// A row is not what the change that was to be taken back or done again expects it to be.
class ChangedSinceError : public RuntimeError
{
public:
    using RuntimeError::RuntimeError;
};
