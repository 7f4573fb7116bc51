#pragma once

#include "ui/look/native_look.h"

namespace velmora {

using namespace Qt::StringLiterals;

/// The look that the application brings along: the symbols below `/velmora/symbols` and the
/// pictures below `/velmora/icon`, SVG resources both, a menu bar in the window, and the font
/// Inter.
class DrawnLook : public NativeLook {
  public:
    /// The weight is that of the strokes; filled shapes stay as they are.
    [[nodiscard]] QImage symbol(const QString& name, QSize pixels, const QColor& tint,
                                SymbolWeight weight) const override;
    [[nodiscard]] QImage picture(SystemPicture which, QSize pixels) const override;
    [[nodiscard]] bool nativeMenuBar() const override { return false; }
    [[nodiscard]] QString fontFamily() const override { return u"Inter"_s; }
    [[nodiscard]] bool reducesMotion() const override { return false; }
};

}  // namespace velmora
