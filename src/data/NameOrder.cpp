#include "data/NameOrder.h"

#include "store/UnicodeCollation.h"
#include "system/Collation.h"

namespace
{

/// Names that are equal so far stay in SQLite's order: nobody looks further for a name's place in a list.
constexpr std::size_t MostCharacters = 256;

} // namespace

QLocale localeOfReaders()
{
    const QLocale locale = QLocale().collation();
    // In the C locale Qt compares code points.
    return locale.language() == QLocale::C ? QLocale(QLocale::English) : locale;
}

NameOrder::NameOrder(const QLocale& locale) : m_collator(locale)
{
    m_collator.setNumericMode(true);
}

QCollatorSortKey NameOrder::key(std::string_view name) const
{
    return sortKey(m_collator, foldedBeginning(name, MostCharacters));
}
