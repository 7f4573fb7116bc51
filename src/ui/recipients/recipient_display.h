#pragma once

#include <QString>

#include "core/records.h"
#include "ui/recipients/recipient_entry.h"

namespace velmora {

/// What a row of the recipient list shows of a person as such. The note, whether the check box can
/// be used and the heading depend on more, and are left as they are.
[[nodiscard]] RecipientEntry entryOf(const Recipient& recipient, const QString& senderNumber,
                                     bool checked);

}  // namespace velmora
