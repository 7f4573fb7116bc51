#pragma once

#include <QString>
#include <optional>

namespace velmora {

/// A phone as a person reads it: "+1" and ten digits, 12 user-perceived characters in all, become
/// "(AAA) BBB-CCCC"; any other text is returned unchanged.
[[nodiscard]] QString displayPhone(const QString& phone);

/// The one form in which phones are kept, "+" and digits: of 8 to 15 digits typed with a leading
/// "+", of 10 digits ("+1" is put before them), or of 11 digits that begin with 1. White space
/// around the text, the marks of direction before it and everything that is no ASCII digit are
/// dropped first. Nothing for any other text.
[[nodiscard]] std::optional<QString> normalizePhone(const QString& typed);

}  // namespace velmora
