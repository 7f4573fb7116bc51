#include "sending/pacing.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace velmora {

namespace {

double boundedSetting(double seconds) {
    constexpr double day = 86400;
    return std::isnan(seconds) ? 0 : std::clamp(seconds, -day, day);
}

// Uniform over 0 ..< count: words of the incomplete last stretch of `count` values, which would
// favour the small results, are drawn again.
quint64 drawBelow(quint64 count, RandomSource& random) {
    constexpr quint64 largest = std::numeric_limits<quint64>::max();
    const quint64 incomplete = (largest % count + 1) % count;
    quint64 word = random.word();
    while (word > largest - incomplete)
        word = random.word();
    return word % count;
}

}  // namespace

double randomWait(const AppConfig& config, RandomSource& random) {
    const auto [shortest, longest] =
        std::minmax({boundedSetting(config.delayMin), boundedSetting(config.delayMax)});
    // As many steps as a double tells apart between 0 and 1, both ends drawn alike.
    constexpr quint64 steps = quint64{1} << 53;
    const quint64 drawn = drawBelow(steps + 1, random);
    if (drawn == steps)
        return longest;
    return shortest +
           (longest - shortest) * static_cast<double>(drawn) / static_cast<double>(steps);
}

qint64 wholeSecondsUp(double seconds) {
    constexpr double beyond = 9223372036854775808.0;  // 2^63
    const double whole = std::ceil(seconds);
    if (whole >= beyond)
        return std::numeric_limits<qint64>::max();
    if (whole < -beyond)
        return std::numeric_limits<qint64>::min();
    return std::isnan(whole) ? 0 : static_cast<qint64>(whole);
}

}  // namespace velmora
