#pragma once

#include "ui/symbol_source.h"

namespace velmora {

/// Draws the symbols that the application brings along, the SVG resources below `/velmora/symbols`.
class SvgSymbolSource : public SymbolSource {
  public:
    /// A light symbol is the same drawing with thinner strokes; filled shapes stay as they are. An
    /// unknown name gives a null image and a warning.
    [[nodiscard]] QImage symbol(const QString& name, QSize pixels, const QColor& tint,
                                SymbolWeight weight) const override;
};

}  // namespace velmora
