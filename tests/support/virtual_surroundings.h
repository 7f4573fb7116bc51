#pragma once

#include <random>

#include "core/surroundings.h"
#include "support/virtual_clock.h"

namespace velmora {

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
