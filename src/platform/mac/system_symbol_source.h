#pragma once

#include <memory>

#include "ui/symbol_source.h"

namespace velmora {

/// The system's own symbols, drawn at any size.
[[nodiscard]] std::unique_ptr<SymbolSource> makeSystemSymbolSource();

}  // namespace velmora
