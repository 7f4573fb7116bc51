#pragma once

#include <QString>
#include <memory>

#include "app/desktop.h"

namespace velmora {

/// A desktop that says on the standard error stream what it would open. A rehearsal keeps nothing
/// awake.
class RehearsalDesktop final : public Desktop {
  public:
    [[nodiscard]] std::unique_ptr<Activity> beginActivity(const QString& reason) override;
    void openPrivacyPane(PrivacyPane pane) override;
    void openMessages() override;
    void openPage(ProductPage page) override;
};

}  // namespace velmora
