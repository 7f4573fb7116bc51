#pragma once

#include <QString>
#include <optional>

#include "core/records.h"
#include "sending/message_sender.h"

namespace velmora {

using namespace Qt::StringLiterals;

// The words of LogEntry::status.
inline const QString statusSent = u"sent"_s;
inline const QString statusUnverified = u"sent_unverified"_s;
inline const QString statusFailed = u"failed"_s;

/// The log's word for a text sent again by SMS after iMessage failed.
inline const QString fallbackLabel = u"SMS (fallback)"_s;

/// Writes into `entry` what became of a send that Messages did not take: service, status and the
/// first 200 user-perceived characters of the error. `label` is the log's word for the service
/// asked for.
void describeRefusal(LogEntry& entry, const QString& label, const SendError& error);

/// Writes into `entry` what became of a send by the history's record of it, or by there being none:
/// service, line, status and detail.
void describeOutcome(LogEntry& entry, const QString& label,
                     const std::optional<SentRecord>& record);

}  // namespace velmora
