#include "platform/RuntimeError.h"

#include <limits>

OverflowError::OverflowError(const QString& what, qint64 value)
    : RuntimeError(QStringLiteral("Overflow: the %1 %2 does not fit into 16 bits.").arg(what).arg(value))
{
}

qint16 narrowId(qint64 id, const QString& what)
{
    if (id < std::numeric_limits<qint16>::min() || id > std::numeric_limits<qint16>::max()) {
        throw OverflowError(what, id);
    }
    return static_cast<qint16>(id);
}
