#pragma once

#include <QCollator>

/// By what `text` sorts in the numeric order of `collator`. Keys of one collator compare alike on every
/// platform: transitively, and texts of the same numbers and letters as equal.
QCollatorSortKey sortKey(const QCollator& collator, const QString& text);
