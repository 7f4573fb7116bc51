#include "platform/rehearsal/rehearsal_platform.h"

#include <sqlite3.h>

#include "platform/rehearsal/address_book.h"
#include "platform/rehearsal/messages_application.h"
#include "platform/rehearsal/rehearsal_desktop.h"

#ifdef __GLIBC__
#include <malloc.h>
#endif

namespace velmora {

namespace {

// The history is opened anew for each reading, which is hundreds of small allocations. Left to
// itself the allocator hands the memory of every connection back to the system and asks for it
// again, and SQLite counts each allocation under a lock: both take longer than the reading.
void makeOpeningCheap() {
#ifdef __GLIBC__
    constexpr int kept = 4 * 1024 * 1024;
    mallopt(M_TRIM_THRESHOLD, kept);
    mallopt(M_MMAP_THRESHOLD, kept);
    mallopt(M_TOP_PAD, 1024 * 1024);
#endif
    // Refused, and without effect, once a database is open.
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
        .look = nullptr,
        .home = home,
        .applicationSupport = home + QStringLiteral("/.local/share"),
    };
}

}  // namespace velmora
