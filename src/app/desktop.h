#pragma once

#include "sending/activity_source.h"

namespace velmora {

/// A section of the system's Privacy & Security settings.
enum class PrivacyPane { fullDiskAccess, contacts };

/// A page of the product's website.
enum class ProductPage { terms, safeguards };

/// The door to the user's desktop. Each request is made and forgotten: where it cannot be met,
/// nothing happens.
class Desktop : public ActivitySource {
  public:
    virtual void openPrivacyPane(PrivacyPane pane) = 0;
    virtual void openMessages() = 0;
    virtual void openPage(ProductPage page) = 0;

    /// Whether the windows are asked to close because the computer's session ends, which nothing
    /// may hold up.
    [[nodiscard]] virtual bool sessionEnds() const = 0;
};

}  // namespace velmora
