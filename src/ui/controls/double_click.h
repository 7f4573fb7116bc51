#pragma once

#include <optional>

#include "app/app_model.h"

namespace velmora {

/// Tells the second half of a double click, or of two quick Returns, on a button from a press of
/// what has come into its place since.
class DoubleClick final {
  public:
    /// `model` outlives it and has the time.
    explicit DoubleClick(const AppModel& model) : model_(model) {}

    /// The first click is now.
    void begin();
    /// Whether a click now is too soon after the first one to be meant for anything else; false
    /// before there was one.
    [[nodiscard]] bool isUnderWay() const;

  private:
    const AppModel& model_;
    std::optional<double> begun_;  // seconds of the model's uptime
};

}  // namespace velmora
