#include "sending/pacing.h"

#include <gtest/gtest.h>

#include <limits>
#include <vector>

#include "support/virtual_surroundings.h"

namespace velmora {
namespace {

constexpr double infinity = std::numeric_limits<double>::infinity();
constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();
constexpr quint64 steps = quint64{1} << 53;

class ChosenWords final : public RandomSource {
  public:
    explicit ChosenWords(std::vector<quint64> words) : words_(std::move(words)) {}
    [[nodiscard]] quint64 word() override { return words_.at(next_++); }

  private:
    std::vector<quint64> words_;
    size_t next_ = 0;
};

AppConfig waits(double delayMin, double delayMax) {
    AppConfig config;
    config.delayMin = delayMin;
    config.delayMax = delayMax;
    return config;
}

// Catches an end that is never drawn, settings that must stand in order, and a remainder taken of
// words that favour the short waits.
TEST(Pacing, DrawsBothEndsAndDrawsAgainWhereWordsAreUneven) {
    ChosenWords words({0, steps, steps / 2, std::numeric_limits<quint64>::max(), steps});
    const AppConfig swapped = waits(60, 30);
    EXPECT_EQ(randomWait(swapped, words), 30);
    EXPECT_EQ(randomWait(swapped, words), 60);
    EXPECT_EQ(randomWait(swapped, words), 45);
    EXPECT_EQ(randomWait(swapped, words), 60);
    EXPECT_EQ(randomWait(waits(12.5, 12.5), *std::make_unique<SeededRandomSource>()), 12.5);
}

// Catches a wait or a countdown that a run never gets out of.
TEST(Pacing, StaysWithinADayForAnySettings) {
    const std::vector<double> extremes = {1e308, -1e308, infinity, -infinity, notANumber, 0, -3};
    SeededRandomSource random;
    for (const double delayMin : extremes) {
        for (const double delayMax : extremes) {
            const double wait = randomWait(waits(delayMin, delayMax), random);
            EXPECT_TRUE(wait >= -86400 && wait <= 86400) << delayMin << ' ' << delayMax;
        }
    }
    EXPECT_EQ(randomWait(waits(notANumber, notANumber), random), 0);
    EXPECT_EQ(randomWait(waits(infinity, 1e308), random), 86400);
}

TEST(Pacing, CountsDownInWholeSecondsRoundedUp) {
    EXPECT_EQ(wholeSecondsUp(4.2), 5);
    EXPECT_EQ(wholeSecondsUp(4), 4);
    EXPECT_EQ(wholeSecondsUp(1e300), std::numeric_limits<qint64>::max());
    EXPECT_EQ(wholeSecondsUp(-1e300), std::numeric_limits<qint64>::min());
    EXPECT_EQ(wholeSecondsUp(notANumber), 0);
}

}  // namespace
}  // namespace velmora
