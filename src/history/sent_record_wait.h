#pragma once

#include <qcoro/qcorotask.h>

#include <QString>
#include <optional>

#include "core/records.h"
#include "core/surroundings.h"

namespace velmora {

/// Waits for the history at `historyPath` to settle the newest message sent to `phone` at or after
/// `since` (a history timestamp): reads it in the background every 2 seconds, on a connection of
/// its own each time, until the record is conclusive or a reading is due after `timeout` seconds,
/// an hour at most: a run cannot be stopped meanwhile.
/// The record of the latest reading; nothing when that found none or failed, and at once when
/// `timeout` is 0 or less.
[[nodiscard]] QCoro::Task<std::optional<SentRecord>> waitForSentRecord(Surroundings surroundings,
                                                                       QString historyPath,
                                                                       QString phone, qint64 since,
                                                                       double timeout);

}  // namespace velmora
