#pragma once

#include <QString>
#include <memory>

namespace velmora {

/// A held assertion that keeps the computer from idling to sleep; ends when it is dropped.
class Activity {
  public:
    virtual ~Activity() = default;
};

/// Where such assertions come from.
class ActivitySource {
  public:
    virtual ~ActivitySource() = default;

    /// Begins a user-initiated activity; `reason` is shown by the system's tools. May give none.
    [[nodiscard]] virtual std::unique_ptr<Activity> beginActivity(const QString& reason) = 0;
};

}  // namespace velmora
