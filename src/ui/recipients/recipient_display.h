#pragma once

#include <QString>

#include "core/records.h"
#include "storage/app_config.h"

namespace velmora {

// What a row of the recipient list shows of one person. Pure functions. Colours are names of the
// theme's colours; an empty text or symbol is not shown.

/// The person's name, or their company where they have no other name.
[[nodiscard]] QString displayName(const Recipient& recipient);

/// The company, unless it already stands as the name.
[[nodiscard]] QString companyBesideName(const Recipient& recipient);

[[nodiscard]] QString issueSymbol(const Recipient& recipient);
[[nodiscard]] QString issueSymbolColor(const Recipient& recipient);
[[nodiscard]] QString issueTextColor(const Recipient& recipient);

/// The label of the number, unless it is the usual "mobile".
[[nodiscard]] QString labelBesidePhone(const Recipient& recipient);

/// The service and line of the conversation, or that there is none yet.
[[nodiscard]] QString threadText(const Recipient& recipient);
[[nodiscard]] QString threadTextColor(const Recipient& recipient);
/// Whether the conversation runs on the line sent from.
[[nodiscard]] QString threadSymbol(const Recipient& recipient, const QString& senderNumber);
[[nodiscard]] QString threadSymbolColor(const Recipient& recipient, const QString& senderNumber);

/// Faint for a person who could be checked and is not.
[[nodiscard]] double rowOpacity(const Recipient& recipient, bool checked);

/// The whole row in words: the name, the company, whether checked, sent or blocked, and the issue.
[[nodiscard]] QString spokenRow(const Recipient& recipient, bool checked);

}  // namespace velmora
