#include <QDir>
#include <QStandardPaths>

#include "platform/rehearsal/factory/local_doorbell.h"
#include "platform/rehearsal/rehearsal_platform.h"

namespace velmora {

Platform makePlatform(Clock& clock) {
    Platform platform = makeRehearsalPlatform(clock, QDir::homePath());
    platform.applicationSupport =
        QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation);
    platform.doorbell = std::make_unique<LocalDoorbell>();
    return platform;
}

}  // namespace velmora
