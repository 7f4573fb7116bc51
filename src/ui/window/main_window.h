#pragma once

#include <QQmlApplicationEngine>
#include <QQuickWindow>
#include <memory>

#include "ui/look/native_look.h"
#include "ui/window/presentation.h"

namespace velmora {

/// Whether sheets, colours and the like change gradually or at once.
enum class Motion { animated, still };

/// The application's main window with all that its views need: their models, the look, the font.
class MainWindow final {
  public:
    /// Makes the window without showing it. `model` outlives it; without a `look` it has the drawn
    /// one. Where the look asks for less motion it is still whatever `motion` says. Ends the
    /// program when the views cannot be loaded, which only a faulty build can cause.
    explicit MainWindow(AppModel& model, std::unique_ptr<NativeLook> look = nullptr,
                        Motion motion = Motion::animated);

    /// Shows the window; the first time, this starts the application model.
    void show();

    /// Puts the window in front of all others and gives it the keyboard, as far as the desktop lets
    /// a program do that; from the Dock or the task bar, too.
    void bringToFront();

    [[nodiscard]] QQuickWindow& window() const { return *window_; }
    [[nodiscard]] Presentation& presentation() { return presentation_; }

  private:
    void followWindow(const NativeLook& look);

    Presentation presentation_;
    QQmlApplicationEngine engine_;
    QQuickWindow* window_ = nullptr;
};

}  // namespace velmora
