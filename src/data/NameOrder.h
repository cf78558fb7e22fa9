#pragma once

#include <QCollator>
#include <QLocale>
#include <algorithm>
#include <numeric>
#include <string_view>
#include <vector>

/// The locale by which the user looks names up: the one that the system sorts by, English where that is none.
QLocale localeOfReaders();

/// The order in which readers of a language look names up: by its alphabet, without regard to letter case,
/// numbers by their value. It is an order among the names that the engine has sorted already: those that it
/// takes for the same stay as they stand. Not thread-safe.
///
/// The engine knows nothing of it, for what two texts are equal for it, and the order of its indexes, must
/// be the same for every user of a data file.
class NameOrder
{
public:
    explicit NameOrder(const QLocale& locale = localeOfReaders());

    /// What decides on the place of `name`, which is UTF-8, however malformed.
    QCollatorSortKey key(std::string_view name) const;

    /// Sorts what the engine has sorted by name; `nameOf` answers the name of an item.
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
