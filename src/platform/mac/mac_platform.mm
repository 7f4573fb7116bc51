#include "platform/mac/doors.h"
#include "platform/mac/native_text.h"
#include "platform/mac/system_symbol_source.h"
#include "platform/platform.h"

namespace velmora {

Platform makePlatform(Clock&) {
    Platform platform;
    platform.contacts = makeMacContactSource();
    platform.scripts = makeMacScriptRunner();
    platform.accountPreferences = makeMacAccountPreferences();
    platform.desktop = makeMacDesktop();
    platform.symbols = makeSystemSymbolSource();
    platform.home = textOf(NSHomeDirectory());
    NSArray<NSURL*>* folders =
        [NSFileManager.defaultManager URLsForDirectory:NSApplicationSupportDirectory
                                             inDomains:NSUserDomainMask];
    platform.applicationSupport = textOf(folders.firstObject.path);
    return platform;
}

}  // namespace velmora
