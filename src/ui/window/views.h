#pragma once

#include <QQmlApplicationEngine>
#include <memory>

#include "ui/look/native_look.h"

namespace velmora {

/// Makes `engine` ready to load the views: their types, their font, and the pictures of `look`.
void prepareViews(QQmlApplicationEngine& engine, std::unique_ptr<NativeLook> look);

}  // namespace velmora
