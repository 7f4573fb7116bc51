#import <AppKit/AppKit.h>

#include <QPainter>

#include "platform/mac/native_text.h"
#include "platform/mac/system_symbol_source.h"

namespace velmora {

namespace {

// The symbol as a template image for a square of `side` points.
NSImage* systemSymbol(const QString& name, double side, SymbolWeight weight) {
    NSImage* image = [NSImage imageWithSystemSymbolName:nativeText(name)
                               accessibilityDescription:nil];
    NSImageSymbolConfiguration* configuration = [NSImageSymbolConfiguration
        configurationWithPointSize:side
                            weight:weight == SymbolWeight::light ? NSFontWeightLight
                                                                 : NSFontWeightRegular];
    return [image imageWithSymbolConfiguration:configuration];
}

NSRect centredIn(QSize pixels, NSSize size) {
    const double scale = std::min(pixels.width() / size.width, pixels.height() / size.height);
    const double width = size.width * scale;
    const double height = size.height * scale;
    return NSMakeRect((pixels.width() - width) / 2, (pixels.height() - height) / 2, width, height);
}

void draw(NSImage* symbol, QImage& canvas) {
    CGColorSpaceRef space = CGColorSpaceCreateDeviceRGB();
    CGContextRef context = CGBitmapContextCreate(
        canvas.bits(), static_cast<size_t>(canvas.width()), static_cast<size_t>(canvas.height()), 8,
        static_cast<size_t>(canvas.bytesPerLine()), space,
        static_cast<uint32_t>(kCGImageAlphaPremultipliedFirst) |
            static_cast<uint32_t>(kCGBitmapByteOrder32Host));
    NSGraphicsContext* previous = NSGraphicsContext.currentContext;
    NSGraphicsContext.currentContext = [NSGraphicsContext graphicsContextWithCGContext:context
                                                                               flipped:NO];
    [symbol drawInRect:centredIn(canvas.size(), symbol.size)
              fromRect:NSZeroRect
             operation:NSCompositingOperationSourceOver
              fraction:1.0];
    NSGraphicsContext.currentContext = previous;
    CGContextRelease(context);
    CGColorSpaceRelease(space);
}

class SystemSymbolSource final : public SymbolSource {
   public:
    QImage symbol(const QString& name, QSize pixels, const QColor& tint,
                  SymbolWeight weight) const override {
        if (pixels.isEmpty()) return {};
        NSImage* image = systemSymbol(name, std::min(pixels.width(), pixels.height()), weight);
        if (image == nil) return {};
        QImage canvas(pixels, QImage::Format_ARGB32_Premultiplied);
        canvas.fill(Qt::transparent);
        draw(image, canvas);
        QPainter painter(&canvas);
        painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
        painter.fillRect(canvas.rect(), tint);
        return canvas;
    }
};

}  // namespace

std::unique_ptr<SymbolSource> makeSystemSymbolSource() {
    return std::make_unique<SystemSymbolSource>();
}

}  // namespace velmora
