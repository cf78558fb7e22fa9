#include "system/FileError.h"

#include <cerrno>

QString FileError::reason(const std::error_code& error)
{
    return reason(error.default_error_condition().value());
}

QString FileError::reason(const QFileDevice& file)
{
    Q_UNUSED(file); // the reason is in errno
    return reason(errno);
}
