#pragma once

#include <QColor>
#include <QImage>
#include <QSize>
#include <QString>
#include <QWindow>
#include <functional>

namespace velmora {

enum class SymbolWeight { light, regular, bold };

/// A picture in colours of its own.
enum class SystemPicture { applicationIcon, arrowPointer };

/// How the desktop wants the application to look: a drawing of ours, or the platform's own.
class NativeLook {
  public:
    virtual ~NativeLook() = default;

    /// The symbol `name` for a place of `pixels` (device pixels), centred on a transparent image
    /// and drawn in `tint` alone. The image is exactly as high as its place; where symbols are of
    /// different widths at one height, it may be wider. A null image when the size is empty, and
    /// with a warning when the name is unknown. From any thread.
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

    // What follows is different only where the desktop has a way of its own.

    /// Whether the window's own title bar shows title and subtitle; otherwise the window draws
    /// them.
    [[nodiscard]] virtual bool nativeTitle() const { return false; }
    /// Shows `subtitle` in the title bar of `window`, which is on the screen.
    virtual void showSubtitle(QWindow& window, const QString& subtitle) const {
        Q_UNUSED(window)
        Q_UNUSED(subtitle)
    }
    /// Whether an application stays when its window is closed, to show it again when it is called.
    [[nodiscard]] virtual bool staysWithoutWindow() const { return false; }
    /// The colour that the user chose for what is chosen or pressed, at this moment; an invalid one
    /// leaves the choice to the theme.
    [[nodiscard]] virtual QColor accent() const { return {}; }
    /// Calls `changed` on the interface thread whenever one of these may have changed, as long as
    /// this lives. Called once.
    virtual void whenChanged(std::function<void()> changed) { Q_UNUSED(changed) }
};

/// How many points the width of the pointer's picture stands for.
inline constexpr double pointerPicturePoints = 32;

}  // namespace velmora
