// What src/platform/mac uses of AppKit and Core Graphics, written from their documentation.
#pragma once

#import <Foundation/Foundation.h>

typedef struct CGColorSpace *CGColorSpaceRef;
typedef struct CGContext *CGContextRef;
enum : uint32_t { kCGImageAlphaPremultipliedFirst = 2, kCGBitmapByteOrder32Host = 2 << 12 };
CGColorSpaceRef CGColorSpaceCreateDeviceRGB(void);
void CGColorSpaceRelease(CGColorSpaceRef space);
CGContextRef CGBitmapContextCreate(void *data, size_t width, size_t height, size_t bitsPerComponent,
                                   size_t bytesPerRow, CGColorSpaceRef space, uint32_t bitmapInfo);
void CGContextRelease(CGContextRef context);
@interface NSWorkspaceOpenConfiguration : NSObject
+ (instancetype)configuration;
@end
enum NSApplicationActivationOptions : NSUInteger { NSApplicationActivateAllWindows = 1 };
@interface NSRunningApplication : NSObject
@property(readonly) int processIdentifier;
+ (NSArray<NSRunningApplication *> *)runningApplicationsWithBundleIdentifier:(NSString *)identifier;
- (BOOL)activateWithOptions:(NSApplicationActivationOptions)options;
@end
extern NSString *const NSWorkspaceAccessibilityDisplayOptionsDidChangeNotification;
@interface NSWorkspace : NSObject
@property(class, readonly) NSWorkspace *sharedWorkspace;
@property(readonly) BOOL accessibilityDisplayShouldReduceMotion;
@property(readonly) NSNotificationCenter *notificationCenter;
- (BOOL)openURL:(NSURL *)url;
- (NSURL *)URLForApplicationWithBundleIdentifier:(NSString *)identifier;
- (void)openApplicationAtURL:(NSURL *)url
               configuration:(NSWorkspaceOpenConfiguration *)configuration
           completionHandler:(void (^)(NSRunningApplication *application, NSError *error))handler;
@end
typedef CGFloat NSFontWeight;
extern const NSFontWeight NSFontWeightLight, NSFontWeightRegular, NSFontWeightBold;
@interface NSImageSymbolConfiguration : NSObject
+ (instancetype)configurationWithPointSize:(CGFloat)size weight:(NSFontWeight)weight;
@end
enum NSCompositingOperation : NSUInteger { NSCompositingOperationSourceOver = 2 };
@interface NSImage : NSObject
@property(readonly) NSSize size;
@property(readonly) NSRect alignmentRect;
+ (instancetype)imageWithSystemSymbolName:(NSString *)name
                 accessibilityDescription:(NSString *)text;
- (NSImage *)imageWithSymbolConfiguration:(NSImageSymbolConfiguration *)configuration;
- (void)drawInRect:(NSRect)target
          fromRect:(NSRect)source
         operation:(NSCompositingOperation)operation
          fraction:(CGFloat)fraction;
@end
@interface NSGraphicsContext : NSObject
@property(class) NSGraphicsContext *currentContext;
+ (NSGraphicsContext *)graphicsContextWithCGContext:(CGContextRef)context flipped:(BOOL)flipped;
@end
@interface NSCursor : NSObject
@property(class, readonly) NSCursor *arrowCursor;
@property(readonly) NSImage *image;
@property(readonly) NSPoint hotSpot;
@end
@interface NSApplication : NSObject
@property(class, readonly) __kindof NSApplication *sharedApplication;
@property(readonly) NSImage *applicationIconImage;
@end
extern NSString *const NSSystemColorsDidChangeNotification;
@interface NSColorSpace : NSObject
@property(class, readonly) NSColorSpace *sRGBColorSpace;
@end
@interface NSColor : NSObject
@property(class, readonly) NSColor *controlAccentColor;
@property(readonly) CGFloat redComponent, greenComponent, blueComponent;
- (NSColor *)colorUsingColorSpace:(NSColorSpace *)space;
@end
@interface NSWindow : NSObject
@property(copy) NSString *subtitle;
@end
@interface NSView : NSObject
@property(readonly) NSWindow *window;
@end
