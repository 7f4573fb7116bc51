// The address book's framework as its documentation describes it, as far as src/platform/mac uses
// it.

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <map>

#include "fake_mac.h"
#include "platform/mac/native_text.h"

#include <dispatch/dispatch.h>

FakeMac* fakeMac = nullptr;

NSString* const CNContactGivenNameKey = @"givenName";
NSString* const CNContactFamilyNameKey = @"familyName";
NSString* const CNContactNicknameKey = @"nickname";
NSString* const CNContactOrganizationNameKey = @"organizationName";
NSString* const CNContactPhoneNumbersKey = @"phoneNumbers";
NSString* const CNContactEmailAddressesKey = @"emailAddresses";
NSString* const CNLabelPhoneNumberMobile = @"native mobile";
NSString* const CNLabelPhoneNumberiPhone = @"native iPhone";
NSString* const CNLabelPhoneNumberMain = @"native main";

namespace {

std::map<id, NSDictionary*> valuesOfAll;

// A property of a person that was not asked for must not be read.
id valueOfProperty(id object, SEL property) {
    NSString* name = NSStringFromSelector(property);
    const bool fetched = [fakeMac->keys containsObject:name] || [name isEqual:@"identifier"];
    if ([object isKindOfClass:[CNContact class]] && !fetched)
        [NSException raise:@"CNPropertyNotFetchedException" format:@"%@ was not fetched", name];
    return valueIn(object, name);
}

}  // namespace

id valueIn(id object, NSString* name) { return [valuesOfAll.at(object) objectForKey:name]; }

id made(Class type, NSDictionary* values) {
    for (NSString* name in @[
             @"identifier", @"givenName", @"familyName", @"nickname", @"organizationName",
             @"phoneNumbers", @"emailAddresses", @"label", @"value", @"stringValue", @"name"
         ])
        class_addMethod(type, NSSelectorFromString(name), (IMP)valueOfProperty, "@@:");
    id object = [[type alloc] init];
    valuesOfAll[object] = [values retain];
    return object;
}

@implementation CNPhoneNumber
@dynamic stringValue;
- (id)copyWithZone:(NSZone*)zone {
    return [self retain];
}
@end

@implementation CNLabeledValue
@dynamic label, value;
+ (NSString*)localizedStringForLabel:(NSString*)label {
    return [@"the word for " stringByAppendingString:label];
}
@end

@implementation CNContact
@dynamic identifier, givenName, familyName, nickname, organizationName, phoneNumbers,
    emailAddresses;
+ (NSPredicate*)predicateForContactsInGroupWithIdentifier:(NSString*)identifier {
    return (NSPredicate*)made([NSObject class], @{@"group" : identifier});
}
@end

@implementation CNGroup
@dynamic identifier, name;
@end

@implementation CNContactFetchRequest
- (instancetype)initWithKeysToFetch:(NSArray*)keys {
    fakeMac->keys = [keys retain];
    fakeMac->unified = false;
    return [super init];
}
- (BOOL)unifyResults {
    return fakeMac->unified;
}
- (void)setUnifyResults:(BOOL)unified {
    fakeMac->unified = unified;
}
@end

@implementation CNContactStore
+ (CNAuthorizationStatus)authorizationStatusForEntityType:(CNEntityType)type {
    return fakeMac->status;
}
- (void)requestAccessForEntityType:(CNEntityType)type
                 completionHandler:(void (^)(BOOL granted, NSError* error))handler {
    auto answer = Block_copy(handler);
    fakeMac->answering = std::thread([answer] {
        answer(fakeMac->granted, fakeMac->accessError);
        Block_release(answer);
    });
}
- (BOOL)enumerateContactsWithFetchRequest:(CNContactFetchRequest*)request
                                    error:(NSError**)error
                               usingBlock:(void (^)(CNContact* contact, BOOL* stop))block {
    BOOL stop = NO;
    for (CNContact* contact in fakeMac->contacts) block(contact, &stop);
    if (fakeMac->readFails) *error = fakeMac->readError;
    return !fakeMac->readFails;
}
- (NSArray*)unifiedContactsMatchingPredicate:(NSPredicate*)predicate
                                 keysToFetch:(NSArray*)keys
                                       error:(NSError**)error {
    fakeMac->keys = [keys retain];
    *error = fakeMac->readError;
    if (fakeMac->readFails) return nil;
    return [fakeMac->members objectForKey:valueIn(predicate, @"group")];
}
- (NSArray*)groupsMatchingPredicate:(NSPredicate*)predicate error:(NSError**)error {
    EXPECT_EQ(predicate, nil) << "only some of the groups are asked for";
    *error = fakeMac->readError;
    return fakeMac->readFails ? nil : fakeMac->groups;
}
@end

dispatch_queue_t dispatch_get_main_queue() {
    static NSObject* const queue = [[NSObject alloc] init];
    return queue;
}

void dispatch_async(dispatch_queue_t queue, void (^block)(void)) {
    EXPECT_EQ(queue, dispatch_get_main_queue());
    auto work = Block_copy(block);
    QMetaObject::invokeMethod(
        QCoreApplication::instance(),
        [work] {
            work();
            Block_release(work);
        },
        Qt::QueuedConnection);
}
