#pragma once

#include <QStringList>
#include <memory>

#include "app/desktop.h"

namespace velmora {

/// A desktop that says on the standard error stream what it would open, and remembers it.
class RehearsalDesktop final : public Desktop {
  public:
    [[nodiscard]] std::unique_ptr<Activity> beginActivity(const QString& reason) override;
    void openPrivacyPane(PrivacyPane pane) override;
    void openMessages() override;
    void openPage(ProductPage page) override;

    /// What was to be opened, in order: the words after "would open", such as "Messages" or the
    /// address of a page.
    [[nodiscard]] const QStringList& requests() const { return requests_; }

    /// How many activities are held now.
    [[nodiscard]] int activeActivities() const { return *activities_; }

  private:
    void wouldOpen(const QString& what);

    QStringList requests_;
    // Shared: an activity may outlive the desktop.
    std::shared_ptr<int> activities_ = std::make_shared<int>(0);
};

}  // namespace velmora
