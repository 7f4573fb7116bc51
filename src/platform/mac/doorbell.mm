#import <AppKit/AppKit.h>

#include "platform/mac/doors.h"

namespace velmora {

namespace {

class MacDoorbell final : public Doorbell {
   public:
    bool ring(const QString&) override {
        NSString* identifier = NSBundle.mainBundle.bundleIdentifier;
        if (identifier == nil) return false;
        for (NSRunningApplication* each in
             [NSRunningApplication runningApplicationsWithBundleIdentifier:identifier]) {
            const bool isThis =
                each.processIdentifier == NSProcessInfo.processInfo.processIdentifier;
            if (!isThis && [each activateWithOptions:NSApplicationActivateAllWindows]) return true;
        }
        return false;
    }

    void answer(const QString&, std::function<void()>) override {}
};

}  // namespace

std::unique_ptr<Doorbell> makeMacDoorbell() { return std::make_unique<MacDoorbell>(); }

}  // namespace velmora
