// Debian's Foundation, and what src/platform/mac uses beyond it, written from the documentation.
#pragma once

#include_next <Foundation/Foundation.h>

typedef const void *CFTypeRef, *CFPropertyListRef;
typedef const struct __attribute__((objc_bridge(NSString))) __CFString *CFStringRef;
#define CFSTR(text) ((__bridge CFStringRef) @text)
CFPropertyListRef CFPreferencesCopyAppValue(CFStringRef key, CFStringRef application);
id CFBridgingRelease(CFTypeRef __attribute__((cf_consumed)) value);

typedef NSOperationQueue *dispatch_queue_t;
dispatch_queue_t dispatch_get_main_queue(void);
void dispatch_async(dispatch_queue_t queue, void (^block)(void));

@interface NSFileManager (Beyond)
- (NSArray<NSURL *> *)URLsForDirectory:(NSSearchPathDirectory)directory
                             inDomains:(NSSearchPathDomainMask)domains;
@end
typedef uint32_t AEKeyword;
@interface NSAppleEventDescriptor (Beyond)
- (NSAppleEventDescriptor *)attributeDescriptorForKeyword:(AEKeyword)keyword;
@end
@interface NSAppleEventManager (Beyond)
+ (NSAppleEventManager *)sharedAppleEventManager;
- (NSAppleEventDescriptor *)currentAppleEvent;
@end
static NSString *const NSAppleScriptErrorMessage = @"the sentence";
@interface NSAppleScript (Beyond)
- (instancetype)initWithSource:(NSString *)source;
- (NSAppleEventDescriptor *)executeAndReturnError:(NSDictionary<NSString *, id> **)error;
@end
