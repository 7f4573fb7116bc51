#import <AppKit/AppKit.h>

#include "app/product_pages.h"
#include "platform/mac/doors.h"
#include "platform/mac/native_text.h"

using namespace Qt::StringLiterals;

namespace velmora {

namespace {

class MacActivity final : public Activity {
   public:
    explicit MacActivity(NSString* reason)
        : token_([NSProcessInfo.processInfo beginActivityWithOptions:NSActivityUserInitiated
                                                              reason:reason]) {}
    ~MacActivity() override { [NSProcessInfo.processInfo endActivity:token_]; }
    MacActivity(const MacActivity&) = delete;
    MacActivity& operator=(const MacActivity&) = delete;

   private:
    id<NSObject> token_;
};

void open(const QString& address) {
    NSURL* url = [NSURL URLWithString:nativeText(address)];
    if (url != nil) [NSWorkspace.sharedWorkspace openURL:url];
}

class MacDesktop final : public Desktop {
   public:
    std::unique_ptr<Activity> beginActivity(const QString& reason) override {
        return std::make_unique<MacActivity>(nativeText(reason));
    }

    void openPrivacyPane(PrivacyPane pane) override {
        const QString anchor =
            pane == PrivacyPane::contacts ? u"Privacy_Contacts"_s : u"Privacy_AllFiles"_s;
        open(u"x-apple.systempreferences:com.apple.preference.security?"_s + anchor);
    }

    void openMessages() override {
        NSURL* application = [NSWorkspace.sharedWorkspace
            URLForApplicationWithBundleIdentifier:@"com.apple.MobileSMS"];
        if (application != nil)
            [NSWorkspace.sharedWorkspace
                openApplicationAtURL:application
                       configuration:[NSWorkspaceOpenConfiguration configuration]
                   completionHandler:nil];
    }

    void openPage(ProductPage page) override {
        open(productPageAddress(QStringLiteral(VELMORA_WEBSITE_HOST), page));
    }

    bool sessionEnds() const override {
        // Who asks a program to quit gives a reason only when the session ends.
        constexpr AEKeyword quitReason = 0x7768793F;  // 'why?'
        NSAppleEventDescriptor* asked =
            NSAppleEventManager.sharedAppleEventManager.currentAppleEvent;
        return [asked attributeDescriptorForKeyword:quitReason] != nil;
    }
};

}  // namespace

std::unique_ptr<Desktop> makeMacDesktop() { return std::make_unique<MacDesktop>(); }

}  // namespace velmora
