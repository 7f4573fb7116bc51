// Debian's Foundation, and what src/platform/mac uses beyond it.
#pragma once

#include_next <Foundation/Foundation.h>

#include <CoreFoundation/CoreFoundation.h>

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
extern NSString *const NSAppleScriptErrorMessage;
@interface NSAppleScript (Beyond)
- (instancetype)initWithSource:(NSString *)source;
- (NSAppleEventDescriptor *)executeAndReturnError:(NSDictionary<NSString *, id> **)error;
@end
