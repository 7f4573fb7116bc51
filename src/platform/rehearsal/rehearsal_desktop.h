#pragma once

#include <QObject>
#include <QString>
#include <memory>

#include "app/desktop.h"

namespace velmora {

/// A desktop that says on the standard error stream what it would open. A rehearsal keeps nothing
/// awake.
class RehearsalDesktop final : public Desktop {
  public:
    RehearsalDesktop();

    [[nodiscard]] std::unique_ptr<Activity> beginActivity(const QString& reason) override;
    void openPrivacyPane(PrivacyPane pane) override;
    void openMessages() override;
    void openPage(ProductPage page) override;
    /// True from when the session manager first announced the end: it does not say when the user
    /// thinks better of it.
    [[nodiscard]] bool sessionEnds() const override { return sessionEnds_; }

  private:
    QObject following_;
    bool sessionEnds_ = false;
};

}  // namespace velmora
