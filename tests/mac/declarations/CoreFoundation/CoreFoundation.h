// What src/platform/mac uses of Core Foundation, written from its documentation.
#pragma once

typedef const void *CFTypeRef, *CFPropertyListRef;
typedef const struct __attribute__((objc_bridge(NSString))) __CFString *CFStringRef;
#define CFSTR(text) ((__bridge CFStringRef) @text)
CFPropertyListRef CFPreferencesCopyAppValue(CFStringRef key, CFStringRef application);
id CFBridgingRelease(CFTypeRef __attribute__((cf_consumed)) value);
