#include "platform/rehearsal/rehearsal_platform.h"

#include <QDir>
#include <QStandardPaths>

#include "platform/rehearsal/address_book.h"
#include "platform/rehearsal/messages_application.h"
#include "platform/rehearsal/rehearsal_desktop.h"

namespace velmora {

Platform makeRehearsalPlatform(Clock& clock, const QString& home) {
    return {
        .contacts = std::make_unique<AddressBook>(home),
        .scripts = std::make_unique<MessagesApplication>(clock, home),
        .accountPreferences = std::make_unique<RehearsalAccount>(home),
        .desktop = std::make_unique<RehearsalDesktop>(),
        .symbols = nullptr,
        .home = home,
        .applicationSupport = home + QStringLiteral("/.local/share"),
    };
}

Platform makePlatform(Clock& clock) {
    Platform platform = makeRehearsalPlatform(clock, QDir::homePath());
    platform.applicationSupport =
        QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation);
    return platform;
}

}  // namespace velmora
