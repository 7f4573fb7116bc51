// What src/platform/mac uses of Foundation and Core Foundation, written from their documentation: a
// compiler without the platform checks our files, as what is misspelt there is not found here.
#pragma once

#include <stddef.h>
#include <stdint.h>

#define nil nullptr
#define YES __objc_yes
#define NO __objc_no
typedef bool BOOL;
typedef long NSInteger;
typedef unsigned long NSUInteger;
typedef unsigned short unichar;
struct NSRange {};
NSRange NSMakeRange(NSUInteger location, NSUInteger length);

@protocol NSCopying
@end
@protocol NSObject
- (BOOL)isKindOfClass:(Class)type;
@end
@protocol NSFastEnumeration
- (NSUInteger)countByEnumeratingWithState:(void *)state objects:(id *)buffer count:(NSUInteger)size;
@end

__attribute__((objc_root_class))
@interface NSObject<NSObject>
+ (instancetype)alloc;
+ (Class)class;
- (instancetype)init;
@end

@interface NSString : NSObject <NSCopying>
+ (instancetype)stringWithCharacters:(const unichar *)characters length:(NSUInteger)length;
@property(readonly) NSUInteger length;
- (void)getCharacters:(unichar *)buffer range:(NSRange)range;
@end
@interface NSConstantString : NSString
@end

@interface NSArray<ObjectType> : NSObject <NSFastEnumeration>
+ (instancetype)arrayWithObjects:(const ObjectType[])objects count:(NSUInteger)count;
@property(readonly) ObjectType firstObject;
@end
@interface NSDictionary<KeyType, ObjectType> : NSObject <NSFastEnumeration>
- (ObjectType)objectForKey:(KeyType)key;
@end

@interface NSError : NSObject
@property(readonly) NSString *localizedDescription;
@end
@interface NSURL : NSObject
+ (instancetype)URLWithString:(NSString *)text;
@property(readonly) NSString *path;
@end

enum NSSearchPathDirectory : NSUInteger { NSApplicationSupportDirectory = 14 };
enum NSSearchPathDomainMask : NSUInteger { NSUserDomainMask = 1 };
NSString *NSHomeDirectory(void);
@interface NSFileManager : NSObject
@property(class, readonly) NSFileManager *defaultManager;
- (NSArray<NSURL *> *)URLsForDirectory:(NSSearchPathDirectory)directory
                             inDomains:(NSSearchPathDomainMask)domains;
@end
enum NSActivityOptions : uint64_t { NSActivityUserInitiated = 0x00FFFFFF };
@interface NSProcessInfo : NSObject
@property(class, readonly) NSProcessInfo *processInfo;
@property(readonly) int processIdentifier;
- (id<NSObject>)beginActivityWithOptions:(NSActivityOptions)options reason:(NSString *)reason;
- (void)endActivity:(id<NSObject>)activity;
@end

@interface NSBundle : NSObject
@property(class, readonly) NSBundle *mainBundle;
@property(readonly) NSString *bundleIdentifier;
@end

typedef uint32_t AEKeyword;
@interface NSAppleEventDescriptor : NSObject
- (NSAppleEventDescriptor *)attributeDescriptorForKeyword:(AEKeyword)keyword;
@end
@interface NSAppleEventManager : NSObject
+ (NSAppleEventManager *)sharedAppleEventManager;
@property(readonly) NSAppleEventDescriptor *currentAppleEvent;
@end
extern NSString *const NSAppleScriptErrorMessage;
@interface NSAppleScript : NSObject
- (instancetype)initWithSource:(NSString *)source;
- (NSAppleEventDescriptor *)executeAndReturnError:(NSDictionary<NSString *, id> **)error;
@end

typedef const void *CFTypeRef, *CFPropertyListRef;
typedef const struct __attribute__((objc_bridge(NSString))) __CFString *CFStringRef;
#define CFSTR(text) ((__bridge CFStringRef) @text)
CFPropertyListRef CFPreferencesCopyAppValue(CFStringRef key, CFStringRef application);
id CFBridgingRelease(CFTypeRef __attribute__((cf_consumed)) value);
@class NSNotification;
@interface NSOperationQueue : NSObject
@property(class, readonly) NSOperationQueue *mainQueue;
@end
@interface NSNotificationCenter : NSObject
@property(class, readonly) NSNotificationCenter *defaultCenter;
- (id<NSObject>)addObserverForName:(NSString *)name
                            object:(id)object
                             queue:(NSOperationQueue *)queue
                        usingBlock:(void (^)(NSNotification *notification))block;
- (void)removeObserver:(id)observer;
@end
