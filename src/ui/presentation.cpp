#include "ui/presentation.h"

namespace velmora {

Presentation::Presentation(AppModel& model, Motion motion)
    : motion_(motion), window_(model), sidebar_(model) {}

}  // namespace velmora
