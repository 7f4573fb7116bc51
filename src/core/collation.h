#pragma once

#include <QCollator>
#include <algorithm>
#include <ranges>
#include <vector>

namespace velmora {

/// How the user's language compares names, letter case ignored.
[[nodiscard]] QCollator nameCollator();

/// Sorts `items` by the name that `nameOf` gives of each, ascending; equal names keep their order.
template <class Item, class NameOf>
void sortByName(std::vector<Item>& items, NameOf nameOf) {
    struct Keyed {
        QCollatorSortKey key;
        size_t position;
    };
    const QCollator collator = nameCollator();
    std::vector<Keyed> keyed;
    keyed.reserve(items.size());
    for (const Item& item : items)
        keyed.push_back({collator.sortKey(nameOf(item)), keyed.size()});
    std::ranges::sort(keyed, [](const Keyed& left, const Keyed& right) {
        const int order = left.key.compare(right.key);
        return order != 0 ? order < 0 : left.position < right.position;
    });
    std::vector<Item> sorted;
    sorted.reserve(items.size());
    for (const Keyed& each : keyed)
        sorted.push_back(std::move(items[each.position]));
    items = std::move(sorted);
}

}  // namespace velmora
