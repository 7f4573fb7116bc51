// Just the declarations of the platform's Contacts framework that src/platform/mac uses, written
// from its public documentation.

#pragma once

#import <Foundation/Foundation.h>

typedef NSInteger CNEntityType;
enum : NSInteger { CNEntityTypeContacts = 0 };
typedef NSInteger CNAuthorizationStatus;

@protocol CNKeyDescriptor <NSObject>
@end
@interface NSString (Contacts) <CNKeyDescriptor>
@end

extern NSString *const CNContactGivenNameKey;
extern NSString *const CNContactFamilyNameKey;
extern NSString *const CNContactNicknameKey;
extern NSString *const CNContactOrganizationNameKey;
extern NSString *const CNContactPhoneNumbersKey;
extern NSString *const CNContactEmailAddressesKey;

extern NSString *const CNLabelPhoneNumberMobile;
extern NSString *const CNLabelPhoneNumberiPhone;
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
@property(readonly) NSString *identifier;
@property(readonly) NSString *givenName;
@property(readonly) NSString *familyName;
@property(readonly) NSString *nickname;
@property(readonly) NSString *organizationName;
@property(readonly) NSArray<CNLabeledValue<CNPhoneNumber *> *> *phoneNumbers;
@property(readonly) NSArray<CNLabeledValue<NSString *> *> *emailAddresses;
+ (NSPredicate *)predicateForContactsInGroupWithIdentifier:(NSString *)identifier;
@end

@interface CNGroup : NSObject
@property(readonly) NSString *identifier;
@property(readonly) NSString *name;
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
