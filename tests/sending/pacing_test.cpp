#include "sending/pacing.h"

#include <gtest/gtest.h>

#include <limits>

#include "support/virtual_surroundings.h"

namespace velmora {
namespace {

constexpr double infinity = std::numeric_limits<double>::infinity();
constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();

struct ChosenWords final : RandomSource {
    explicit ChosenWords(std::vector<quint64> words) : left(std::move(words)) {}
    [[nodiscard]] quint64 word() override {
        const quint64 next = left.at(0);
        left.erase(left.begin());
        return next;
    }

    std::vector<quint64> left;
};

double waitBetween(double delayMin, double delayMax, RandomSource&& random = SeededRandomSource()) {
    AppConfig config;
    config.delayMin = delayMin;
    config.delayMax = delayMax;
    return randomWait(config, random);
}

// Catches an end that is never drawn, settings that must stand in order, and a remainder taken of
// words that favour the short waits.
TEST(Pacing, DrawsBothEndsAndDrawsAgainWhereWordsAreUneven) {
    constexpr quint64 steps = quint64{1} << 53;
    EXPECT_EQ(waitBetween(60, 30, ChosenWords({0})), 30);
    EXPECT_EQ(waitBetween(60, 30, ChosenWords({steps})), 60);
    EXPECT_EQ(waitBetween(60, 30, ChosenWords({steps / 2})), 45);
    EXPECT_EQ(waitBetween(60, 30, ChosenWords({std::numeric_limits<quint64>::max(), steps})), 60);
    EXPECT_EQ(waitBetween(12.5, 12.5), 12.5);
}

// Catches a wait or a countdown that a run never gets out of.
TEST(Pacing, StaysWithinADayForAnySettings) {
    const auto extremes = {1e308, -1e308, infinity, -infinity, notANumber, 0.0, -3.0};
    for (const double delayMin : extremes) {
        for (const double delayMax : extremes)
            EXPECT_LE(std::abs(waitBetween(delayMin, delayMax)), 86400) << delayMin << delayMax;
    }
    EXPECT_EQ(waitBetween(notANumber, notANumber), 0);
    EXPECT_EQ(waitBetween(infinity, 1e308), 86400);
    EXPECT_EQ(wholeSecondsUp(4.2), 5);
    EXPECT_EQ(wholeSecondsUp(4), 4);
    EXPECT_EQ(wholeSecondsUp(1e300), std::numeric_limits<qint64>::max());
    EXPECT_EQ(wholeSecondsUp(-1e300), std::numeric_limits<qint64>::min());
    EXPECT_EQ(wholeSecondsUp(notANumber), 0);
}

}  // namespace
}  // namespace velmora
