#include <QDir>
#include <QStandardPaths>

#include "platform/rehearsal/rehearsal_platform.h"

namespace velmora {

Platform makePlatform(Clock& clock) {
    Platform platform = makeRehearsalPlatform(clock, QDir::homePath());
    platform.applicationSupport =
        QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation);
    return platform;
}

}  // namespace velmora
