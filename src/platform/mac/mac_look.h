#pragma once

#include <memory>

#include "ui/look/native_look.h"

namespace velmora {

/// The system's symbols and pictures at any size, its menu bar, its font and what the user set.
[[nodiscard]] std::unique_ptr<NativeLook> makeMacLook();

}  // namespace velmora
