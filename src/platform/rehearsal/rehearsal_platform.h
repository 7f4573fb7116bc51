#pragma once

#include "platform/platform.h"

namespace velmora {

/// A rehearsal that lives in any folder: `home` stands for the user's home folder. `clock` outlives
/// it.
[[nodiscard]] Platform makeRehearsalPlatform(Clock& clock, const QString& home);

}  // namespace velmora
