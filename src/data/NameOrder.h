#pragma once

#include <QCollator>
#include <QLocale>
#include <algorithm>
#include <numeric>
#include <string_view>
#include <vector>

/// The locale that the system sorts by; English where that is the C locale.
QLocale localeOfReaders();

/// The order in which speakers of a language look names up: by its alphabet, without regard to case,
/// numbers by their value. It refines SQLite's order: names that it takes for equal stay as they are. Not
/// thread-safe.
///
/// SQLite is not given this order: which texts are equal, and the order of the indexes, must be the same
/// for every user of a data file.
class NameOrder
{
public:
    explicit NameOrder(const QLocale& locale = localeOfReaders());

    /// The sort key of `name`, which is UTF-8 but may be malformed.
    QCollatorSortKey key(std::string_view name) const;

    /// Sorts items that SQLite has sorted by name already; `nameOf` returns an item's name.
    template <typename Item, typename NameOf> void sort(std::vector<Item>& items, NameOf nameOf) const
    {
        std::vector<std::pair<QCollatorSortKey, std::size_t>> order;
        order.reserve(items.size());
        for (const Item& item : items) {
            order.emplace_back(key(nameOf(item)), order.size());
        }
        std::stable_sort(order.begin(), order.end(),
            [](const auto& one, const auto& other) { return one.first.compare(other.first) < 0; });
        std::vector<Item> sorted;
        sorted.reserve(items.size());
        for (const auto& [unused, index] : order) {
            sorted.push_back(std::move(items[index]));
        }
        items = std::move(sorted);
    }

private:
    QCollator m_collator;
};
