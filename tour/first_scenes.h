#pragma once

#include "tour/stage.h"

namespace velmora {

// The pictures from the first start to an empty list, each scene on a stage of its own.
void firstStart(Stage& stage);
void noNumber(Stage& stage);
void severalNumbers(Stage& stage);
void contactsDenied(Stage& stage);
void emptyStates(Stage& stage);

}  // namespace velmora
