#pragma once

#include <QIcon>

namespace velmora {

/// The application's icon as it is drawn here, each size when a desktop asks for it.
[[nodiscard]] QIcon applicationIcon();

}  // namespace velmora
