#pragma once

#include <QObject>
#include <QtQmlIntegration>

#include "app/app_model.h"
#include "ui/main_window_model.h"
#include "ui/sidebar_model.h"

namespace velmora {

/// Whether sheets and the like move into place or are simply there.
enum class Motion { animated, still };

/// All that the views are given: one model for each of them.
class Presentation final : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Made with the main window")
    Q_PROPERTY(bool animated READ animated CONSTANT)
    Q_PROPERTY(velmora::MainWindowModel* window READ window CONSTANT)
    Q_PROPERTY(velmora::SidebarModel* sidebar READ sidebar CONSTANT)

  public:
    /// `model` outlives it.
    Presentation(AppModel& model, Motion motion);

    [[nodiscard]] bool animated() const { return motion_ == Motion::animated; }
    [[nodiscard]] MainWindowModel* window() { return &window_; }
    [[nodiscard]] SidebarModel* sidebar() { return &sidebar_; }

  private:
    Motion motion_;
    MainWindowModel window_;
    SidebarModel sidebar_;
};

}  // namespace velmora
