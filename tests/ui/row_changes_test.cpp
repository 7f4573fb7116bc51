#include "ui/row_changes.h"

#include <gtest/gtest.h>

#include <QStringList>
#include <algorithm>
#include <random>

namespace velmora {

namespace {

using Rows = std::vector<QString>;

Rows numbered(int count, int every = 1) {
    Rows rows;
    for (int row = 0; row < count; row += every)
        rows.push_back(QString::number(row));
    return rows;
}

/// `before` after the steps; `stayed` gets what no step touched.
Rows walked(Rows before, const Rows& after, qsizetype kept, Rows* stayed = nullptr) {
    for (const RowChange& step : rowChanges(before, after, kept)) {
        if (step.kind == RowChange::Kind::insert) {
            before.insert(before.begin() + step.first, after.begin() + step.first,
                          after.begin() + step.first + step.count);
            continue;
        }
        before.erase(before.begin() + step.first, before.begin() + step.first + step.count);
        if (stayed != nullptr)
            *stayed = before;
    }
    return before;
}

// Catches steps that lead to another list than the one wanted, whatever the two are.
TEST(RowChanges, leadFromAnyListToAnyOther) {
    std::mt19937 random(20250314);
    const auto draw = [&random] {
        Rows rows = numbered(300);
        std::ranges::shuffle(rows, random);
        rows.resize(random() % 300);
        if (random() % 2 == 0)
            std::ranges::sort(rows);
        return rows;
    };
    for (int round = 0; round < 200; ++round) {
        const Rows before = draw();
        const Rows after = draw();
        ASSERT_EQ(walked(before, after, static_cast<int>(random() % 300) - 1), after);
    }
}

// Catches thousands of steps for one letter typed, and a view whose rows all go.
TEST(RowChanges, stayFewAndKeepWhatIsInSight) {
    const Rows everyone = numbered(10000);
    const Rows some = numbered(10000, 3);
    Rows stayed;
    EXPECT_EQ(walked(everyone, some, 6000, &stayed), some);
    EXPECT_LT(rowChanges(everyone, some, 6000).size(), 250U);
    for (int row = 6000; row < 6030; row += 3)
        EXPECT_NE(std::ranges::find(stayed, QString::number(row)), stayed.end()) << row;
    EXPECT_TRUE(rowChanges(some, some, 0).empty());
}

}  // namespace

}  // namespace velmora
