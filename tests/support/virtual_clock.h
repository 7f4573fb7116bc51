#pragma once

#include <map>

#include "core/clock.h"

namespace velmora {

/// A clock that jumps from wake-up to wake-up, so that a run of an hour takes milliseconds and is
/// the same every time.
class VirtualClock final : public Clock {
  public:
    explicit VirtualClock(Moment start) : start_(start) {}

    [[nodiscard]] Moment now() const override { return start_ + elapsed_ + wallShift_; }
    [[nodiscard]] double uptime() const override { return elapsed_; }
    void after(double seconds, std::function<void()> action) override;

    /// Jumps until nothing waits any more; false when something still does after `limit` seconds
    /// more.
    bool runUntilIdle(double limit = 1e6);
    /// Jumps through everything due in the next `seconds` and stands at their end.
    void advance(double seconds);
    /// Sets the wall clock forward or back, as a user or the network does; waits don't notice.
    void shiftWall(double seconds) { wallShift_ += seconds; }

  private:
    bool stepBefore(double deadline);

    Moment start_;
    double elapsed_ = 0;
    double wallShift_ = 0;
    std::multimap<double, std::function<void()>> waiting_;
};

}  // namespace velmora
