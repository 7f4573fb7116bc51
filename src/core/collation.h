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
        Item item;
    };
    const QCollator collator = nameCollator();
    std::vector<Keyed> keyed;
    keyed.reserve(items.size());
    for (Item& item : items) {
        QCollatorSortKey key = collator.sortKey(nameOf(item));
        keyed.push_back({std::move(key), std::move(item)});
    }
    std::ranges::stable_sort(
        keyed, [](const Keyed& left, const Keyed& right) { return left.key < right.key; });
    items.clear();
    for (Keyed& each : keyed)
        items.push_back(std::move(each.item));
}

}  // namespace velmora
