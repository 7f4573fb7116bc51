#pragma once

#import <Foundation/Foundation.h>

#include <QString>
#include <optional>

namespace velmora {

/// `text` as the platform's text: the same UTF-16 units.
[[nodiscard]] inline NSString* nativeText(const QString& text) {
    return [NSString stringWithCharacters:reinterpret_cast<const unichar*>(text.utf16())
                                   length:static_cast<NSUInteger>(text.size())];
}

/// The platform's text as ours; nothing becomes the empty text.
[[nodiscard]] inline QString textOf(NSString* text) {
    const NSUInteger length = text.length;
    QString result(static_cast<qsizetype>(length), Qt::Uninitialized);
    if (length > 0)
        [text getCharacters:reinterpret_cast<unichar*>(result.data()) range:NSMakeRange(0, length)];
    return result;
}

/// The platform's text as ours, or nothing.
[[nodiscard]] inline std::optional<QString> optionalTextOf(NSString* text) {
    if (text == nil) return std::nullopt;
    return textOf(text);
}

}  // namespace velmora
