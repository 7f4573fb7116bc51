#pragma once

#include <QQmlApplicationEngine>
#include <QQuickWindow>
#include <memory>

#include "ui/presentation.h"
#include "ui/symbol_source.h"

namespace velmora {

/// Whether sheets, colours and the like change gradually or at once.
enum class Motion { animated, still };

/// The application's main window with all that its views need: their models, the symbols, the font.
class MainWindow final {
  public:
    /// Makes the window without showing it. `model` outlives it; without `symbols` it draws its
    /// own. Ends the program when the views cannot be loaded, which only a faulty build can cause.
    MainWindow(AppModel& model, std::unique_ptr<SymbolSource> symbols,
               Motion motion = Motion::animated);

    /// Shows the window; the first time, this starts the application model.
    void show();

    [[nodiscard]] QQuickWindow& window() const { return *window_; }
    [[nodiscard]] Presentation& presentation() { return presentation_; }

  private:
    Presentation presentation_;
    QQmlApplicationEngine engine_;
    QQuickWindow* window_ = nullptr;
};

}  // namespace velmora
