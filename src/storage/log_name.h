#pragma once

#include <QString>

namespace velmora {

/// The run name as a file name without its ending: every Unicode scalar that is no letter, mark,
/// number, "-" or "_" becomes "-"; "-" at both ends is removed; "batch" when nothing is left.
[[nodiscard]] QString safeFileStem(const QString& batch);

/// The name of the run's file: its stem and ".csv". Where that is longer than file systems take, a
/// hash of the stem stands for its end.
[[nodiscard]] QString logFileName(const QString& batch);

}  // namespace velmora
