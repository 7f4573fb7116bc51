#pragma once

#include <algorithm>
#include <map>
#include <random>

#include "core/surroundings.h"

namespace velmora {

/// A clock that jumps from wake-up to wake-up, so that a run of an hour takes milliseconds and is
/// the same every time.
class VirtualClock final : public Clock {
  public:
    explicit VirtualClock(Moment start) : start_(start) {}

    [[nodiscard]] Moment now() const override { return start_ + elapsed_ + wallShift_; }
    [[nodiscard]] double uptime() const override { return elapsed_; }
    void after(double seconds, std::function<void()> action) override {
        waiting_.emplace(elapsed_ + std::max(seconds, 0.0), std::move(action));
    }

    /// Jumps until nothing waits any more; false when something still does after `limit` seconds
    /// more.
    bool runUntilIdle(double limit = 1e6) {
        jumpThrough(elapsed_ + limit);
        return waiting_.empty();
    }
    /// Jumps through everything due in the next `seconds` and stands at their end.
    void advance(double seconds) {
        const double end = elapsed_ + seconds;
        jumpThrough(end);
        elapsed_ = end;
    }
    /// Sets the wall clock forward or back, as a user or the network does; waits don't notice.
    void shiftWall(double seconds) { wallShift_ += seconds; }

  private:
    void jumpThrough(double deadline) {
        while (!waiting_.empty() && waiting_.begin()->first <= deadline) {
            auto next = waiting_.extract(waiting_.begin());
            elapsed_ = next.key();
            next.mapped()();
        }
    }

    Moment start_;
    double elapsed_ = 0;
    double wallShift_ = 0;
    std::multimap<double, std::function<void()>> waiting_;
};

/// Random words from a fixed seed.
class SeededRandomSource final : public RandomSource {
  public:
    [[nodiscard]] quint64 word() override { return engine_(); }

  private:
    std::mt19937_64 engine_{20250314};
};

/// Does the work on this thread, at the clock's next turn.
class InlineBackground final : public Background {
  public:
    explicit InlineBackground(Clock& clock) : clock_(clock) {}

    void run(std::function<void()> work, std::function<void()> finished) override {
        clock_.after(0, [work = std::move(work), finished = std::move(finished)] {
            work();
            finished();
        });
    }

  private:
    Clock& clock_;
};

/// A world whose time, chance and threads are the test's. It begins at 2025-03-14 15:00:00 UTC,
/// which is 11 in the morning in New York, the tests' time zone.
struct VirtualSurroundings {
    VirtualClock clock{Moment{763657200.0}};
    SeededRandomSource random;
    InlineBackground background{clock};

    [[nodiscard]] Surroundings handed() { return {clock, random, background}; }
};

}  // namespace velmora
