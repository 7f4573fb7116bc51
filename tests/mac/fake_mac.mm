// The frameworks as their documentation describes them, as far as src/platform/mac uses them: what
// is asked is written down, and answered as the test says.

#import <AppKit/AppKit.h>

#include "fake_mac.h"

#include <QCoreApplication>

#include "platform/mac/mac_look.h"
#include "platform/mac/native_text.h"

using namespace Qt::StringLiterals;
using velmora::textOf;

namespace {

MacTest* mac = nullptr;
std::map<id, Answers> answersOf;

/// Writes an argument down, or leaves the error in the place for it.
template <typename Value>
void note(QStringList& words, Value value) {
    if constexpr (std::is_convertible_v<Value, id>)
        words << textOf([(id)value description]);
    else if constexpr (std::is_arithmetic_v<Value> || std::is_enum_v<Value>)
        words << QString::number(static_cast<quint64>(value), 16);
    else if (mac->error != nil)
        *value = mac->error;
}

/// What an object answers of its own, or else what the test says.
template <typename Answer, typename... Arguments>
Answer asked(id whom, SEL selector, Arguments... arguments) {
    const std::string name = sel_getName(selector);
    QStringList words;
    (note(words, arguments), ...);
    if (name.ends_with(':')) mac->calls << QString::fromStdString(name) + words.join(u", "_s);
    const Answers& own = answersOf[whom];
    id answer = own.contains(name) ? own.at(name) : mac->answers[name];
    if constexpr (std::is_arithmetic_v<Answer>)
        return static_cast<Answer>([answer longLongValue]);
    else
        return (Answer)answer;
}

// A property of a person that no read asked for must not be looked at.
id valueOfProperty(id whom, SEL selector) {
    const auto name = QString::fromUtf8(sel_getName(selector));
    if ([whom isKindOfClass:[CNContact class]] && name != u"identifier" &&
        mac->calls.filter(name).isEmpty())
        [NSException raise:@"CNPropertyNotFetchedException" format:@"%s", sel_getName(selector)];
    return answersOf[whom][sel_getName(selector)];
}

}  // namespace

id made(const char* type, const Answers& answers) {
    for (const char* name :
         {"identifier", "givenName", "familyName", "nickname", "organizationName", "phoneNumbers",
          "emailAddresses", "label", "value", "stringValue", "name"})
        class_addMethod(objc_getClass(type), sel_registerName(name), (IMP)valueOfProperty, "@@:");
    id made = [[objc_getClass(type) alloc] init];
    answersOf[made] = answers;
    return made;
}

MacTest::MacTest() {
    mac = this;
    answers = {{"configuration", @"any way"},
               {"initWithKeysToFetch:", [[CNContactFetchRequest alloc] init]},
               {"initWithSource:", [[NSAppleScript alloc] init]},
               {"sharedAppleEventManager", [[NSAppleEventManager alloc] init]},
               {"sharedWorkspace", [[NSWorkspace alloc] init]}};
}

using ScriptError = NSDictionary<NSString*, id>*;
using Opened = void (^)(NSRunningApplication*, NSError*);

// A message of a class (+) or of its objects (-): what it answers, its words, what each takes.
#define DO(type, ...)                                              \
    {                                                              \
        return asked<type>(self, _cmd __VA_OPT__(, ) __VA_ARGS__); \
    }
#define ASKS(kind, type, name) kind(type) name DO(type)
#define ASKS_1(kind, type, name, A) kind(type) name : (A)a DO(type, a)
#define ASKS_2(kind, type, name, A, second, B) kind(type) name : (A)a second : (B)b DO(type, a, b)
#define ASKS_3(kind, type, name, A, second, B, third, C) \
    kind(type) name : (A)a second : (B)b third : (C)c DO(type, a, b, c)

@implementation CNPhoneNumber
@end
@implementation CNGroup
@end
@implementation CNLabeledValue
ASKS_1(+, NSString*, localizedStringForLabel, NSString*)
@end
@implementation CNContact
ASKS_1(+, NSPredicate*, predicateForContactsInGroupWithIdentifier, NSString*)
@end
@implementation CNContactFetchRequest
ASKS_1(-, id, initWithKeysToFetch, NSArray*)
ASKS_1(-, void, setUnifyResults, BOOL)
@end
@implementation NSAppleEventDescriptor (Beyond)
ASKS_1(-, NSAppleEventDescriptor*, attributeDescriptorForKeyword, AEKeyword)
@end
@implementation NSAppleEventManager (Beyond)
ASKS(+, NSAppleEventManager*, sharedAppleEventManager)
ASKS(-, NSAppleEventDescriptor*, currentAppleEvent)
@end
@implementation NSAppleScript (Beyond)
ASKS_1(-, id, initWithSource, NSString*)
ASKS_1(-, NSAppleEventDescriptor*, executeAndReturnError, ScriptError*)
@end
@implementation NSBundle (Beyond)
ASKS(-, NSString*, bundleIdentifier)
@end
@implementation NSFileManager (Beyond)
ASKS_2(-, NSArray*, URLsForDirectory, NSSearchPathDirectory, inDomains, NSSearchPathDomainMask)
@end
@implementation NSProcessInfo (Beyond)
ASKS_2(-, id, beginActivityWithOptions, NSActivityOptions, reason, NSString*)
ASKS_1(-, void, endActivity, id)
@end
@implementation NSRunningApplication
ASKS_1(+, NSArray*, runningApplicationsWithBundleIdentifier, NSString*)
ASKS(-, int, processIdentifier)
ASKS_1(-, BOOL, activateWithOptions, NSApplicationActivationOptions)
@end
@implementation NSWorkspaceOpenConfiguration
ASKS(+, id, configuration)
@end
@implementation NSWorkspace
ASKS(+, NSWorkspace*, sharedWorkspace)
ASKS_1(-, BOOL, openURL, NSURL*)
ASKS_1(-, NSURL*, URLForApplicationWithBundleIdentifier, NSString*)
ASKS_3(-, void, openApplicationAtURL, NSURL*, configuration, NSWorkspaceOpenConfiguration*,
       completionHandler, Opened)
@end
@implementation CNContactStore
ASKS_1(+, NSInteger, authorizationStatusForEntityType, CNEntityType)
ASKS_3(-, NSArray*, unifiedContactsMatchingPredicate, NSPredicate*, keysToFetch, NSArray*, error,
       NSError**)
ASKS_2(-, NSArray*, groupsMatchingPredicate, NSPredicate*, error, NSError**)
- (void)requestAccessForEntityType:(CNEntityType)type
                 completionHandler:(void (^)(BOOL granted, NSError* error))handler {
    EXPECT_EQ(type, CNEntityTypeContacts);
    mac->answering = std::thread([answer = Block_copy(handler)] {
        answer([mac->answers["granted"] boolValue], mac -> error);
    });
}
- (BOOL)enumerateContactsWithFetchRequest:(CNContactFetchRequest*)request
                                    error:(NSError**)error
                               usingBlock:(void (^)(CNContact* contact, BOOL* stop))block {
    NSArray* contacts = mac->answers["contacts"];
    BOOL stop = NO;
    for (CNContact* contact in contacts) block(contact, &stop);
    *error = mac->error;
    return contacts != nil;
}
@end

dispatch_queue_t dispatch_get_main_queue() { return [NSOperationQueue mainQueue]; }

void dispatch_async(dispatch_queue_t queue, void (^block)(void)) {
    EXPECT_EQ(queue, dispatch_get_main_queue());
    const auto work = [work = Block_copy(block)] { work(); };
    QMetaObject::invokeMethod(QCoreApplication::instance(), work, Qt::QueuedConnection);
}

CFPropertyListRef CFPreferencesCopyAppValue(CFStringRef key, CFStringRef application) {
    mac->calls << textOf((NSString*)key) + u" of "_s + textOf((NSString*)application);
    return (CFPropertyListRef)mac->answers["aliases"];
}

id CFBridgingRelease(CFTypeRef value) { return (id)value; }

// What draws is parsed but not run.
std::unique_ptr<velmora::NativeLook> velmora::makeMacLook() { return nullptr; }

// Nothing counts references here, so that whatever is made stays.
extern "C" const char* __asan_default_options() { return "detect_leaks=0"; }
