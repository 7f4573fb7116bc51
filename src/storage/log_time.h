#pragma once

#include <QString>
#include <QStringView>
#include <optional>

#include "core/moment.h"

namespace velmora {

/// The moment as it stands in a log, rounded down to the second and kept within the years 1 to
/// 9999: ISO 8601 with the offset of the user's time zone, such as 2025-03-05T14:03:22+01:00, or
/// "Z" when that is zero. The zone is the one at the process's first use of this or of
/// parseLogTime.
[[nodiscard]] QString formatLogTime(Moment moment);

/// The same with an offset of `offset` minutes east of UTC, whatever the user's time zone.
[[nodiscard]] QString formatLogTime(Moment moment, int offset);

/// The moment of a text in that form, with any offset or "Z"; nothing for any other text.
[[nodiscard]] std::optional<Moment> parseLogTime(QStringView text);

}  // namespace velmora
