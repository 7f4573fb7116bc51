// What src/platform/mac uses of the Contacts framework, written from its documentation.
#pragma once

#import <Foundation/Foundation.h>

enum CNEntityType : NSInteger { CNEntityTypeContacts };
typedef NSInteger CNAuthorizationStatus;

@protocol CNKeyDescriptor
@end
@interface NSString (Contacts) <CNKeyDescriptor>
@end
extern NSString *const CNContactGivenNameKey, *const CNContactFamilyNameKey;
extern NSString *const CNContactNicknameKey, *const CNContactOrganizationNameKey;
extern NSString *const CNContactPhoneNumbersKey, *const CNContactEmailAddressesKey;
extern NSString *const CNLabelPhoneNumberMobile, *const CNLabelPhoneNumberiPhone;
extern NSString *const CNLabelPhoneNumberMain;

@class NSPredicate;
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
@interface CNContactStore : NSObject
+ (CNAuthorizationStatus)authorizationStatusForEntityType:(CNEntityType)type;
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
