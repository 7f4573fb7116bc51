#include "platform/rehearsal/rehearsal_platform.h"

#include <sqlite3.h>

#include "platform/rehearsal/address_book.h"
#include "platform/rehearsal/messages_application.h"
#include "platform/rehearsal/rehearsal_desktop.h"

using namespace Qt::StringLiterals;

namespace velmora {

namespace {

// The history is opened anew for each reading, which is hundreds of small allocations, and SQLite
// counts each of them under a lock. Refused, and without effect, once a database is open.
void makeOpeningCheap() {
    sqlite3_config(SQLITE_CONFIG_MEMSTATUS, 0);
}

}  // namespace

Platform makeRehearsalPlatform(Clock& clock, const QString& home) {
    makeOpeningCheap();
    return {
        .contacts = std::make_unique<AddressBook>(home),
        .scripts = std::make_unique<MessagesApplication>(clock, home),
        .accountPreferences = std::make_unique<RehearsalAccount>(home),
        .desktop = std::make_unique<RehearsalDesktop>(),
        .doorbell = nullptr,
        .look = nullptr,
        .home = home,
        .applicationSupport = home + u"/.local/share"_s,
    };
}

}  // namespace velmora
