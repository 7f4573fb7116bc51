#import <Foundation/Foundation.h>

#include "platform/mac/doors.h"
#include "platform/mac/native_value.h"

namespace velmora {

namespace {

class MacAccountPreferences final : public AccountPreferences {
   public:
    [[nodiscard]] QVariant aliases() const override {
        CFPropertyListRef aliases =
            CFPreferencesCopyAppValue(CFSTR("IMD-IDS-Aliases"), CFSTR("com.apple.madrid"));
        return valueOf(CFBridgingRelease(aliases));
    }
};

}  // namespace

std::unique_ptr<AccountPreferences> makeMacAccountPreferences() {
    return std::make_unique<MacAccountPreferences>();
}

}  // namespace velmora
