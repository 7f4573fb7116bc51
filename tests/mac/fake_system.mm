// Scripts, the workspace, activities, preferences and folders as their documentation describes
// them, as far as src/platform/mac uses them. Each writes down what it was asked.

#import <AppKit/AppKit.h>
#include <gtest/gtest.h>

#include "fake_mac.h"
#include "platform/mac/mac_look.h"
#include "platform/mac/native_text.h"

using namespace Qt::StringLiterals;
using velmora::textOf;

NSString* const NSAppleScriptErrorMessage = @"NSAppleScriptErrorMessage";

// Nothing counts references here, so that whatever is made stays.
extern "C" const char* __asan_default_options() { return "detect_leaks=0"; }

namespace {

void wrote(const QString& what, NSString* value) { fakeMac->calls << what + u' ' + textOf(value); }

}  // namespace

@implementation NSAppleScript (Beyond)
- (instancetype)initWithSource:(NSString*)source {
    wrote(u"script"_s, source);
    return fakeMac->scriptIsRefused ? nil : [super init];
}
- (NSAppleEventDescriptor*)executeAndReturnError:(NSDictionary<NSString*, id>**)error {
    fakeMac->calls << u"run"_s;
    if (fakeMac->scriptError != nil) *error = fakeMac->scriptError;
    return nil;
}
@end

@implementation NSAppleEventDescriptor (Beyond)
- (NSAppleEventDescriptor*)attributeDescriptorForKeyword:(AEKeyword)keyword {
    return keyword == fakeMac->eventAttribute ? self : nil;
}
@end

@implementation NSAppleEventManager (Beyond)
+ (NSAppleEventManager*)sharedAppleEventManager {
    return [[[self alloc] init] autorelease];
}
- (NSAppleEventDescriptor*)currentAppleEvent {
    if (fakeMac->eventAttribute == 0) return nil;
    return [[[NSAppleEventDescriptor alloc] init] autorelease];
}
@end

// In place of Debian's own, which does nothing.
@implementation NSProcessInfo (Beyond)
- (id)beginActivityWithOptions:(NSActivityOptions)options reason:(NSString*)reason {
    wrote(u"begin %1"_s.arg(options, 0, 16), reason);
    return [reason retain];
}
- (void)endActivity:(id<NSObject>)activity {
    wrote(u"end"_s, (NSString*)activity);
}
- (int)processIdentifier {
    return 1;
}
@end

@implementation NSFileManager (Beyond)
- (NSArray<NSURL*>*)URLsForDirectory:(NSSearchPathDirectory)directory
                           inDomains:(NSSearchPathDomainMask)domains {
    EXPECT_EQ(directory, NSApplicationSupportDirectory);
    EXPECT_EQ(domains, NSUserDomainMask);
    return fakeMac->hasFolders
               ? @[ [NSURL fileURLWithPath:@"/Users/ann/Library/Application Support"] ]
               : @[];
}
@end

@implementation NSWorkspaceOpenConfiguration
+ (instancetype)configuration {
    return [[[self alloc] init] autorelease];
}
@end

@implementation NSWorkspace
@dynamic accessibilityDisplayShouldReduceMotion, notificationCenter;
+ (NSWorkspace*)sharedWorkspace {
    static NSWorkspace* const shared = [[self alloc] init];
    return shared;
}
- (BOOL)openURL:(NSURL*)url {
    wrote(u"open"_s, [url absoluteString]);
    return YES;
}
- (NSURL*)URLForApplicationWithBundleIdentifier:(NSString*)identifier {
    wrote(u"look for"_s, identifier);
    return fakeMac->hasMessages ? [NSURL URLWithString:@"file:///Messages.app"] : nil;
}
- (void)openApplicationAtURL:(NSURL*)url
               configuration:(NSWorkspaceOpenConfiguration*)configuration
           completionHandler:(void (^)(NSRunningApplication*, NSError*))handler {
    EXPECT_NE(url, nil) << "the workspace raises at an application without an address";
    EXPECT_NE(configuration, nil);
    wrote(u"start"_s, [url absoluteString]);
}
@end

// In place of Debian's own: the tests' program lies in no bundle.
@implementation NSBundle (Beyond)
- (NSString*)bundleIdentifier {
    return fakeMac->bundle;
}
@end

@implementation NSRunningApplication
+ (NSArray<NSRunningApplication*>*)runningApplicationsWithBundleIdentifier:(NSString*)identifier {
    wrote(u"running"_s, identifier);
    return fakeMac->processes;
}
- (int)processIdentifier {
    return [valueIn(self, @"number") intValue];
}
- (BOOL)activateWithOptions:(NSApplicationActivationOptions)options {
    fakeMac->calls << u"activate %1"_s.arg(self.processIdentifier);
    return self.processIdentifier == fakeMac->comesForward;
}
@end

CFPropertyListRef CFPreferencesCopyAppValue(CFStringRef key, CFStringRef application) {
    wrote(u"prefer"_s,
          [NSString stringWithFormat:@"%@ of %@", (NSString*)key, (NSString*)application]);
    return (CFPropertyListRef)fakeMac->preference;
}

id CFBridgingRelease(CFTypeRef value) { return (id)value; }

// What draws is parsed but not run.
std::unique_ptr<velmora::NativeLook> velmora::makeMacLook() { return nullptr; }
