#pragma once

#include <QColor>
#include <QImage>
#include <QSize>
#include <QString>

namespace velmora {

enum class SymbolWeight { regular, light };

/// A picture in colours of its own.
enum class SystemPicture { applicationIcon, arrowPointer };

/// How the desktop wants the application to look: a drawing of ours, or the platform's own.
class NativeLook {
  public:
    virtual ~NativeLook() = default;

    /// The symbol `name`, as large as fits into `pixels` (device pixels) with its aspect kept,
    /// centred on a transparent image of exactly that size and drawn in `tint` alone. A null image
    /// when the size is empty, and with a warning when the name is unknown. From any thread.
    [[nodiscard]] virtual QImage symbol(const QString& name, QSize pixels, const QColor& tint,
                                        SymbolWeight weight) const = 0;

    /// The picture on a transparent image of exactly `pixels` (device pixels): the icon as large as
    /// fits, centred; the pointer with its tip in the top left corner, at the scale at which the
    /// width stands for 32 points. A null image when the size is empty. On the interface thread
    /// alone.
    [[nodiscard]] virtual QImage picture(SystemPicture which, QSize pixels) const = 0;

    /// Whether the menus belong to the desktop; otherwise the window has a bar of its own.
    [[nodiscard]] virtual bool nativeMenuBar() const = 0;

    /// The family of all text.
    [[nodiscard]] virtual QString fontFamily() const = 0;

    /// Whether the user asked for less movement on the screen, at this moment.
    [[nodiscard]] virtual bool reducesMotion() const = 0;
};

/// How many points the width of the pointer's picture stands for.
inline constexpr double pointerPicturePoints = 32;

}  // namespace velmora
