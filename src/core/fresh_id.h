#pragma once

#include <QUuid>

namespace velmora {

/// A random identity (UUID version 4). Drawn from a securely seeded generator, because a long log
/// needs one for each line and the system's source is asked anew for each.
[[nodiscard]] QUuid freshID();

}  // namespace velmora
