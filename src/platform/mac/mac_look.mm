#import <AppKit/AppKit.h>

#include <QPainter>
#include <algorithm>
#include <cmath>

#include "platform/mac/mac_look.h"
#include "platform/mac/native_text.h"

using namespace Qt::StringLiterals;

namespace velmora {

namespace {

NSFontWeight nativeWeight(SymbolWeight weight) {
    switch (weight) {
        case SymbolWeight::light:
            return NSFontWeightLight;
        case SymbolWeight::bold:
            return NSFontWeightBold;
        case SymbolWeight::regular:
            break;
    }
    return NSFontWeightRegular;
}

// The symbol as a template image. It is a vector image: its size in points, which the number of
// pixels stands in for, chooses its details, and whoever draws it chooses how large it becomes.
NSImage* systemSymbol(const QString& name, double size, SymbolWeight weight) {
    NSImage* image = [NSImage imageWithSystemSymbolName:nativeText(name)
                               accessibilityDescription:nil];
    NSImageSymbolConfiguration* configuration =
        [NSImageSymbolConfiguration configurationWithPointSize:size weight:nativeWeight(weight)];
    return [image imageWithSymbolConfiguration:configuration];
}

// How large a symbol's type is for a place of some height: the tallest just fit.
constexpr double pointsForHeight = 0.8;

// On the middle of a canvas, where all symbols of one size have one baseline: what they are aligned
// by reaches from it to the height of a capital.
NSRect onTheLine(QSize canvas, NSImage* image) {
    const double scale = std::min(1.0, canvas.height() / image.size.height);
    const NSRect aligned = image.alignmentRect;
    const double middle = aligned.origin.y + aligned.size.height / 2;
    const double width = image.size.width * scale;
    return NSMakeRect((canvas.width() - width) / 2, canvas.height() / 2.0 - middle * scale, width,
                      image.size.height * scale);
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
    ~MacLook() override {
        if (motion_ != nil) [NSWorkspace.sharedWorkspace.notificationCenter removeObserver:motion_];
        if (colors_ != nil) [NSNotificationCenter.defaultCenter removeObserver:colors_];
    }

    QImage symbol(const QString& name, QSize pixels, const QColor& tint,
                  SymbolWeight weight) const override {
        if (pixels.isEmpty()) return {};
        NSImage* image = systemSymbol(name, pixels.height() * pointsForHeight, weight);
        if (image == nil) {
            qWarning("There is no symbol named \"%s\".", qUtf8Printable(name));
            return {};
        }
        const int width = static_cast<int>(std::ceil(image.size.width));
        const QSize size(std::max(pixels.width(), width), pixels.height());
        QImage canvas = drawn(image, size, onTheLine(size, image));
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

    bool nativeTitle() const override { return true; }
    void showSubtitle(QWindow& window, const QString& subtitle) const override {
        NSView* view = (__bridge NSView*)reinterpret_cast<void*>(window.winId());
        view.window.subtitle = nativeText(subtitle);
    }
    bool staysWithoutWindow() const override { return true; }

    QColor accent() const override {
        NSColor* color =
            [NSColor.controlAccentColor colorUsingColorSpace:NSColorSpace.sRGBColorSpace];
        if (color == nil) return {};
        return QColor::fromRgbF(static_cast<float>(color.redComponent),
                                static_cast<float>(color.greenComponent),
                                static_cast<float>(color.blueComponent));
    }

    void whenChanged(std::function<void()> changed) override {
        void (^tell)(NSNotification*) = ^(NSNotification*) {
            changed();
        };
        NSOperationQueue* interface = NSOperationQueue.mainQueue;
        motion_ = [NSWorkspace.sharedWorkspace.notificationCenter
            addObserverForName:NSWorkspaceAccessibilityDisplayOptionsDidChangeNotification
                        object:nil
                         queue:interface
                    usingBlock:tell];
        colors_ = [NSNotificationCenter.defaultCenter
            addObserverForName:NSSystemColorsDidChangeNotification
                        object:nil
                         queue:interface
                    usingBlock:tell];
    }

   private:
    id<NSObject> motion_ = nil;
    id<NSObject> colors_ = nil;
};

}  // namespace

std::unique_ptr<NativeLook> makeMacLook() { return std::make_unique<MacLook>(); }

}  // namespace velmora
