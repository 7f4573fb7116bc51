#pragma once

#include <QString>

#include "app/desktop.h"

namespace velmora {

/// The web address of a page of the product's website, which stands on `host`.
[[nodiscard]] QString productPageAddress(const QString& host, ProductPage page);

}  // namespace velmora
