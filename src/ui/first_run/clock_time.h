#pragma once

#include <QString>

#include "core/moment.h"

namespace velmora {

/// The hours, minutes and seconds of `moment` in the user's time zone, as their language writes
/// them, without a date or a zone.
[[nodiscard]] QString clockTimeText(Moment moment);

}  // namespace velmora
