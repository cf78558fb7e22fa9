#include "system/RuntimeError.h"

#include <limits>

OverflowError::OverflowError(const char* what, qint64 value)
    : RuntimeError(tr("Overflow: the %1 %2 does not fit into 16 bits.").arg(tr(what)).arg(value))
{
}

qint16 narrowId(qint64 id, const char* what)
{
    if (id < std::numeric_limits<qint16>::min() || id > std::numeric_limits<qint16>::max()) {
        throw OverflowError(what, id);
    }
    return static_cast<qint16>(id);
}
