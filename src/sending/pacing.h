#pragma once

#include <QtGlobal>

#include "core/surroundings.h"
#include "storage/app_config.h"

namespace velmora {

/// A wait in seconds, uniformly drawn from the closed interval between the two pacing settings,
/// whichever order they stand in. Settings of more than a day either way count as a day, one that
/// is no number as 0.
[[nodiscard]] double randomWait(const AppConfig& config, RandomSource& random);

/// `seconds` rounded up to a whole number, within the range of 64 bits.
[[nodiscard]] qint64 wholeSecondsUp(double seconds);

}  // namespace velmora
