#include "system/Collation.h"

QCollatorSortKey sortKey(const QCollator& collator, const QString& text)
{
    return collator.sortKey(text);
}
