#import <AppKit/AppKit.h>

#include <QPainter>
#include <algorithm>

#include "platform/mac/mac_look.h"
#include "platform/mac/native_text.h"

using namespace Qt::StringLiterals;

namespace velmora {

namespace {

// The symbol as a template image. It is a vector image: its size in points, which the number of
// pixels stands in for, chooses its details, and whoever draws it chooses how large it becomes.
NSImage* systemSymbol(const QString& name, double size, SymbolWeight weight) {
    NSImage* image = [NSImage imageWithSystemSymbolName:nativeText(name)
                               accessibilityDescription:nil];
    NSImageSymbolConfiguration* configuration = [NSImageSymbolConfiguration
        configurationWithPointSize:size
                            weight:weight == SymbolWeight::light ? NSFontWeightLight
                                                                 : NSFontWeightRegular];
    return [image imageWithSymbolConfiguration:configuration];
}

// As large as fits, in pixels.
NSRect centredIn(QSize pixels, NSSize size) {
    const double scale = std::min(pixels.width() / size.width, pixels.height() / size.height);
    const double width = size.width * scale;
    const double height = size.height * scale;
    return NSMakeRect((pixels.width() - width) / 2, (pixels.height() - height) / 2, width, height);
}

// With the hot spot, which is measured from the top left of the pointer, in the top left corner of
// a canvas whose places are measured from the bottom left.
NSRect pointerIn(QSize pixels, NSCursor* pointer) {
    const double scale = pixels.width() / pointerPicturePoints;
    const NSSize size = pointer.image.size;
    const double bottom = pixels.height() - (size.height - pointer.hotSpot.y) * scale;
    return NSMakeRect(-pointer.hotSpot.x * scale, bottom, size.width * scale, size.height * scale);
}

// A transparent image of that size with `image` at `place`; null when the system gives no canvas.
QImage drawn(NSImage* image, QSize pixels, NSRect place) {
    QImage canvas(pixels, QImage::Format_ARGB32_Premultiplied);
    canvas.fill(Qt::transparent);
    CGColorSpaceRef space = CGColorSpaceCreateDeviceRGB();
    CGContextRef context = CGBitmapContextCreate(
        canvas.bits(), static_cast<size_t>(canvas.width()), static_cast<size_t>(canvas.height()), 8,
        static_cast<size_t>(canvas.bytesPerLine()), space,
        static_cast<uint32_t>(kCGImageAlphaPremultipliedFirst) |
            static_cast<uint32_t>(kCGBitmapByteOrder32Host));
    CGColorSpaceRelease(space);
    if (context == nullptr) return {};
    NSGraphicsContext* previous = NSGraphicsContext.currentContext;
    NSGraphicsContext.currentContext = [NSGraphicsContext graphicsContextWithCGContext:context
                                                                               flipped:NO];
    [image drawInRect:place
             fromRect:NSZeroRect
            operation:NSCompositingOperationSourceOver
             fraction:1.0];
    NSGraphicsContext.currentContext = previous;
    CGContextRelease(context);
    return canvas;
}

class MacLook final : public NativeLook {
   public:
    QImage symbol(const QString& name, QSize pixels, const QColor& tint,
                  SymbolWeight weight) const override {
        if (pixels.isEmpty()) return {};
        NSImage* image = systemSymbol(name, std::min(pixels.width(), pixels.height()), weight);
        if (image == nil) {
            qWarning("There is no symbol named \"%s\".", qUtf8Printable(name));
            return {};
        }
        QImage canvas = drawn(image, pixels, centredIn(pixels, image.size));
        if (canvas.isNull()) return {};
        QPainter painter(&canvas);
        painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
        painter.fillRect(canvas.rect(), tint);
        return canvas;
    }

    QImage picture(SystemPicture which, QSize pixels) const override {
        if (pixels.isEmpty()) return {};
        if (which == SystemPicture::applicationIcon) {
            NSImage* icon = NSApplication.sharedApplication.applicationIconImage;
            return drawn(icon, pixels, centredIn(pixels, icon.size));
        }
        NSCursor* pointer = NSCursor.arrowCursor;
        return drawn(pointer.image, pixels, pointerIn(pixels, pointer));
    }

    bool nativeMenuBar() const override { return true; }
    QString fontFamily() const override { return u".AppleSystemUIFont"_s; }
    bool reducesMotion() const override {
        return NSWorkspace.sharedWorkspace.accessibilityDisplayShouldReduceMotion;
    }
};

}  // namespace

std::unique_ptr<NativeLook> makeMacLook() { return std::make_unique<MacLook>(); }

}  // namespace velmora
