#pragma once

#include <QString>
#include <memory>

#include "ui/look/native_look.h"

namespace velmora {

/// Shows `sentence` in a small window of its own until the user closes it; without a `look` in the
/// drawn one. For a program that has no other window.
void showNotice(const QString& sentence, std::unique_ptr<NativeLook> look);

}  // namespace velmora
