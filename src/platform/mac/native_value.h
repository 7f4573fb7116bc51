#pragma once

#import <Foundation/Foundation.h>

#include <QVariant>

namespace velmora {

/// The platform's value as ours: texts, lists, and dictionaries with text keys. Anything else, a
/// dictionary with other keys included, is an invalid value.
[[nodiscard]] QVariant valueOf(id value);

}  // namespace velmora
