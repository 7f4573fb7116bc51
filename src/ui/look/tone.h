#pragma once

#include <QObject>
#include <QtQmlIntegration>

namespace velmora {

namespace look {

Q_NAMESPACE
QML_NAMED_ELEMENT(Look)

/// The colours that the models speak of. `Theme.colorOf` says what each looks like.
enum class Tone { primary, secondary, tertiary, accent, red, orange, green };
Q_ENUM_NS(Tone)

}  // namespace look

using look::Tone;

}  // namespace velmora
