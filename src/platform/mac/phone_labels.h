#pragma once

#import <Foundation/Foundation.h>

#include <QString>
#include <optional>

namespace velmora {

/// The label of a number as our constants spell it where they name it, else as it is; none for
/// none.
[[nodiscard]] std::optional<QString> phoneLabelOf(NSString* label);

/// What the framework calls a label that `phoneLabelOf` gave.
[[nodiscard]] NSString* nativePhoneLabel(const QString& label);

}  // namespace velmora
