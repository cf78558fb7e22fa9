#include "data/NameOrder.h"

#include "platform/database/UnicodeCollation.h"

namespace
{

/// Nobody looks further into a name for its place in a list: names that are alike so far stay as the engine
/// has them.
constexpr std::size_t MostCharacters = 256;

} // namespace

QLocale localeOfReaders()
{
    const QLocale locale = QLocale().collation();
    // Qt would compare codes.
    return locale.language() == QLocale::C ? QLocale(QLocale::English) : locale;
}

NameOrder::NameOrder(const QLocale& locale) : m_collator(locale)
{
    m_collator.setNumericMode(true);
}

QCollatorSortKey NameOrder::key(std::string_view name) const
{
    return m_collator.sortKey(foldedBeginning(name, MostCharacters));
}
