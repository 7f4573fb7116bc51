#pragma once

#include <QByteArray>
#include <map>
#include <string>

namespace velmora {

/// Hands bytes from outside to one reader, and ends the program when what comes out of it cannot
/// be.
using Reader = void (*)(const QByteArray& bytes);

/// Every reader of data from outside, by name.
[[nodiscard]] const std::map<std::string, Reader>& readers();

}  // namespace velmora
