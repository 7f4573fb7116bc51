#pragma once

#include <QString>

#include "sending/runner.h"
#include "storage/app_config.h"

namespace velmora {

// What the views say of a run, before, while and after it goes. Pure functions.

/// How many of the run are done, what it does right now, and its message; empty when there is
/// nothing to say.
[[nodiscard]] QString statusLine(const Runner& runner);

/// The send button's title when `people` are checked.
[[nodiscard]] QString sendTitle(qsizetype people);

/// The confirm sheet's question when `people` are checked.
[[nodiscard]] QString confirmTitle(qsizetype people);

/// How far apart the texts will be: whole seconds, cut toward zero. A delay that is not finite or
/// does not fit into 64 bits is written with its decimals or exponent, or as "inf" or "nan".
[[nodiscard]] QString paceLine(const AppConfig& config);

/// The symbol of a log entry's status, and the name of its colour in the theme.
[[nodiscard]] QString statusSymbol(const QString& status);
[[nodiscard]] QString statusColor(const QString& status);

/// The log entry's status in words, its service and its detail, as far as there are any.
[[nodiscard]] QString entryDetails(const LogEntry& entry);

/// The entry's time on a clock in the user's place and language.
[[nodiscard]] QString clockTime(const LogEntry& entry);

}  // namespace velmora
