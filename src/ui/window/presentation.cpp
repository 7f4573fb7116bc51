#include "ui/window/presentation.h"

namespace velmora {

Presentation::Presentation(AppModel& model)
    : window_(model),
      menus_(model),
      sidebar_(model),
      recipients_(model),
      compose_(model),
      run_(model),
      activity_(model.runner()),
      confirm_(model),
      settings_(model),
      firstRun_(model) {
    const auto followCover = [this] { menus_.setContentCovered(!window_.commandsEnabled()); };
    connect(&window_, &MainWindowModel::changed, this, followCover);
    followCover();
    connect(&menus_, &MenuCommands::findRequested, &recipients_, &RecipientsModel::searchRequested);
}

}  // namespace velmora
