#include "platform/rehearsal/rehearsal_platform.h"

#include "platform/rehearsal/address_book.h"
#include "platform/rehearsal/messages_application.h"
#include "platform/rehearsal/rehearsal_desktop.h"

#ifdef __GLIBC__
#include <malloc.h>
#endif

namespace velmora {

namespace {

// The history is opened anew for each reading. Left to itself the allocator hands the memory of
// every connection back to the system and asks for it again, which takes longer than the reading.
void keepFreedMemory() {
#ifdef __GLIBC__
    constexpr int kept = 32 * 1024 * 1024;
    mallopt(M_TRIM_THRESHOLD, kept);
    mallopt(M_MMAP_THRESHOLD, kept);
    mallopt(M_TOP_PAD, 1024 * 1024);
#endif
}

}  // namespace

Platform makeRehearsalPlatform(Clock& clock, const QString& home) {
    keepFreedMemory();
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
