#include "platform/mac/doors.h"
#include "platform/mac/mac_look.h"
#include "platform/mac/native_text.h"
#include "platform/platform.h"

namespace velmora {

Platform makePlatform(Clock&) {
    // The hardened runtime forbids memory that is written and then run. The views hold bindings
    // only, which gain nothing from being compiled, so they are interpreted and the right is not
    // asked for.
    qputenv("QV4_FORCE_INTERPRETER", "1");
    Platform platform;
    platform.contacts = makeMacContactSource();
    platform.scripts = makeMacScriptRunner();
    platform.accountPreferences = makeMacAccountPreferences();
    platform.desktop = makeMacDesktop();
    platform.doorbell = makeMacDoorbell();
    platform.look = makeMacLook();
    platform.home = textOf(NSHomeDirectory());
    NSArray<NSURL*>* folders =
        [NSFileManager.defaultManager URLsForDirectory:NSApplicationSupportDirectory
                                             inDomains:NSUserDomainMask];
    platform.applicationSupport = textOf(folders.firstObject.path);
    return platform;
}

}  // namespace velmora
