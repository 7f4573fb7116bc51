#pragma once

#include <QString>

namespace velmora {

/// `text` for the screen: the phone numbers in it, as a person reads them, hold together at the end
/// of a line. Only for what is shown, never for what is stored.
[[nodiscard]] QString withWholeNumbers(QString text);

}  // namespace velmora
