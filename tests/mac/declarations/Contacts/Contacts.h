// What src/platform/mac uses of the Contacts framework, written from its documentation; the texts
// are ours.
#pragma once

#import <Foundation/Foundation.h>

static NSString *const CNContactGivenNameKey = @"givenName";
static NSString *const CNContactFamilyNameKey = @"familyName";
static NSString *const CNContactNicknameKey = @"nickname";
static NSString *const CNContactOrganizationNameKey = @"organizationName";
static NSString *const CNContactPhoneNumbersKey = @"phoneNumbers";
static NSString *const CNContactEmailAddressesKey = @"emailAddresses";
static NSString *const CNLabelPhoneNumberMobile = @"native mobile";
static NSString *const CNLabelPhoneNumberiPhone = @"native iPhone";
static NSString *const CNLabelPhoneNumberMain = @"native main";

@protocol CNKeyDescriptor
@end
@interface NSString (Contacts) <CNKeyDescriptor>
@end
@interface CNPhoneNumber : NSObject <NSCopying>
@property(readonly) NSString *stringValue;
@end
@interface CNLabeledValue<ValueType : id <NSCopying>> : NSObject
@property(readonly) NSString *label;
@property(readonly) ValueType value;
+ (NSString *)localizedStringForLabel:(NSString *)label;
@end
@interface CNContact : NSObject
@property(readonly) NSString *identifier, *givenName, *familyName, *nickname, *organizationName;
@property(readonly) NSArray<CNLabeledValue<CNPhoneNumber *> *> *phoneNumbers;
@property(readonly) NSArray<CNLabeledValue<NSString *> *> *emailAddresses;
+ (NSPredicate *)predicateForContactsInGroupWithIdentifier:(NSString *)identifier;
@end
@interface CNGroup : NSObject
@property(readonly) NSString *identifier, *name;
@end
@interface CNContactFetchRequest : NSObject
- (instancetype)initWithKeysToFetch:(NSArray<id<CNKeyDescriptor>> *)keys;
@property BOOL unifyResults;
@end
enum CNEntityType : NSInteger { CNEntityTypeContacts };
@interface CNContactStore : NSObject
+ (NSInteger)authorizationStatusForEntityType:(CNEntityType)type;
- (void)requestAccessForEntityType:(CNEntityType)type
                 completionHandler:(void (^)(BOOL granted, NSError *error))handler;
- (BOOL)enumerateContactsWithFetchRequest:(CNContactFetchRequest *)request
                                    error:(NSError **)error
                               usingBlock:(void (^)(CNContact *contact, BOOL *stop))block;
- (NSArray<CNContact *> *)unifiedContactsMatchingPredicate:(NSPredicate *)predicate
                                               keysToFetch:(NSArray<id<CNKeyDescriptor>> *)keys
                                                     error:(NSError **)error;
- (NSArray<CNGroup *> *)groupsMatchingPredicate:(NSPredicate *)predicate error:(NSError **)error;
@end
