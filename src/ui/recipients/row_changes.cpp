#include "ui/recipients/row_changes.h"

#include <algorithm>
#include <ranges>

namespace velmora {

namespace {

constexpr qsizetype mostSteps = 200;
constexpr qsizetype keptAround = 80;  // more than a tall display shows

// Where each row of one list stands in the other; -1 where it does not.
std::vector<qsizetype> findPlaces(const std::vector<qsizetype>& before,
                                  const std::vector<qsizetype>& after) {
    const auto last = std::ranges::max_element(after);
    std::vector<qsizetype> places(last == after.end() ? 0 : static_cast<size_t>(*last) + 1, -1);
    for (size_t place = 0; place < after.size(); ++place)
        places[static_cast<size_t>(after[place])] = static_cast<qsizetype>(place);
    std::vector<qsizetype> found;
    found.reserve(before.size());
    for (const qsizetype row : before)
        found.push_back(row >= 0 && row < std::ssize(places) ? places[static_cast<size_t>(row)]
                                                             : -1);
    return found;
}

// Which rows stay, in each of the two lists.
struct Staying {
    std::vector<bool> before;
    std::vector<bool> after;
};

Staying findStaying(const std::vector<qsizetype>& places, size_t countAfter, qsizetype from,
                    qsizetype to) {
    Staying staying{std::vector<bool>(places.size()), std::vector<bool>(countAfter)};
    qsizetype last = -1;
    for (qsizetype row = from; row < to; ++row) {
        const qsizetype place = places[static_cast<size_t>(row)];
        if (place <= last)
            continue;
        staying.before[static_cast<size_t>(row)] = true;
        staying.after[static_cast<size_t>(place)] = true;
        last = place;
    }
    return staying;
}

std::vector<RowChange> runs(const std::vector<bool>& staying, RowChange::Kind kind) {
    std::vector<RowChange> found;
    for (qsizetype row = 0; row < std::ssize(staying); ++row) {
        if (staying[static_cast<size_t>(row)])
            continue;
        if (found.empty() || found.back().first + found.back().count != row)
            found.push_back({.kind = kind, .first = row, .count = 0});
        ++found.back().count;
    }
    return found;
}

std::vector<RowChange> stepsOf(const Staying& staying) {
    std::vector<RowChange> steps = runs(staying.before, RowChange::Kind::remove);
    std::ranges::reverse(steps);
    std::ranges::copy(runs(staying.after, RowChange::Kind::insert), std::back_inserter(steps));
    return steps;
}

}  // namespace

std::vector<RowChange> rowChanges(const std::vector<qsizetype>& before,
                                  const std::vector<qsizetype>& after, qsizetype kept) {
    if (before == after)
        return {};
    const std::vector<qsizetype> places = findPlaces(before, after);
    std::vector<RowChange> steps =
        stepsOf(findStaying(places, after.size(), 0, std::ssize(before)));
    if (std::ssize(steps) <= mostSteps)
        return steps;
    return stepsOf(findStaying(places, after.size(), std::max<qsizetype>(kept - keptAround, 0),
                               std::min<qsizetype>(kept + keptAround, std::ssize(before))));
}

}  // namespace velmora
