#pragma once

#include "system/RuntimeError.h"

#include <QFileDevice>
#include <system_error>

/// A file that could not be copied or replaced.
class FileError : public RuntimeError
{
    Q_DECLARE_TR_FUNCTIONS(FileError)

public:
    using RuntimeError::RuntimeError;
    FileError(const QString& path, const QString& why)
        : RuntimeError(QStringLiteral("\"%1\": %2.").arg(path, why)), m_why(why)
    {
    }

    /// Why, without the name of the file. Empty when the text says it all.
    const QString& why() const { return m_why; }
    /// The reason for a system error number, in words for whoever chose the file: "the disk is full". For
    /// other numbers the system's own message.
    static QString reason(int error);
    /// The same for an error of the system or the library.
    static QString reason(const std::error_code& error);
    /// The same for the last failed call on `file`.
    static QString reason(const QFileDevice& file);

private:
    QString m_why;
};

/// Why an operation on files failed, in words that follow a colon.
QString reasonOf(const std::exception& error);
