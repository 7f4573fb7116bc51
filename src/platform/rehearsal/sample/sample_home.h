#pragma once

#include <QString>
#include <expected>

#include "core/moment.h"
#include "storage/files.h"

namespace velmora {

/// Prepares `home` for a rehearsal that shows everything once: the address book, the settings of
/// Messages, a history whose conversations end in the weeks before `now`, and settings of Velmora
/// with short waits. Refuses a folder that holds such a home already.
[[nodiscard]] std::expected<void, FileError> prepareSampleHome(const QString& home, Moment now);

}  // namespace velmora
