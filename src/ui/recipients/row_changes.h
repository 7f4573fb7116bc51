#pragma once

#include <QtGlobal>
#include <vector>

namespace velmora {

/// One step on the way from one list to another: `count` rows from `first` on go or come.
struct RowChange {
    enum class Kind { remove, insert };

    Kind kind = Kind::remove;
    qsizetype first = 0;
    qsizetype count = 0;
};

/// The steps that turn `before` into `after`, each row a number from 0; in `before` a negative one
/// is gone: first the removals, from the end of `before` to its start, then the insertions, from
/// the start of `after` to its end. What is in both stays, except a row that has moved past
/// another: that one goes and comes. Where this would take hundreds of steps, only the rows around
/// `kept`, a row of `before`, stay, and the others go and come in few pieces.
[[nodiscard]] std::vector<RowChange> rowChanges(const std::vector<qsizetype>& before,
                                                const std::vector<qsizetype>& after,
                                                qsizetype kept);

}  // namespace velmora
