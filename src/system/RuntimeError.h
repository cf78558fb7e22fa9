#pragma once

#include <QCoreApplication>
#include <stdexcept>

/// A failure that ends the current action: what failed and why, as a text for the user.
class RuntimeError : public std::runtime_error
{
public:
    explicit RuntimeError(const QString& text) : std::runtime_error(text.toStdString()) { }
    QString text() const { return QString::fromUtf8(what()); }
};

/// A number that does not fit the width in which the program passes it.
class OverflowError : public RuntimeError
{
    Q_DECLARE_TR_FUNCTIONS(OverflowError)

public:
    /// `what` names the number, such as "task id"; mark it with QT_TRANSLATE_NOOP for this class.
    OverflowError(const char* what, qint64 value);
};

/// `id` as a 16-bit id. Throws OverflowError, which names the id by `what`, when it does not fit.
qint16 narrowId(qint64 id, const char* what);
