#pragma once

#include <QtGlobal>
#include <coroutine>
#include <functional>
#include <optional>
#include <utility>

#include "core/clock.h"

namespace velmora {

/// Random words, handed in so that a test can choose them.
class RandomSource {
  public:
    virtual ~RandomSource() = default;

    /// 64 bits, each value as likely as any other.
    [[nodiscard]] virtual quint64 word() = 0;
};

/// Runs work away from the interface thread, handed in so that a test can run it in place.
class Background {
  public:
    virtual ~Background() = default;

    /// Runs `work` on some other thread, then `finished` on the interface thread, never before this
    /// returns. `work` owns all that it touches. When the application ends first, `finished` is not
    /// called.
    virtual void run(std::function<void()> work, std::function<void()> finished) = 0;
};

/// What a task awaits to have `work` done in the background: its result, on the interface thread.
/// What it hands in writes the result into the suspended task's frame, so that frame has to last
/// until the work is done: a task that waits here ends by being resumed, never by being destroyed.
template <class Result>
class [[nodiscard]] InBackground {
  public:
    InBackground(Background& background, std::function<Result()> work)
        : background_(&background), work_(std::move(work)) {}

    [[nodiscard]] bool await_ready() const noexcept { return false; }
    void await_suspend(std::coroutine_handle<> task) {
        background_->run([this] { result_.emplace(work_()); }, [task] { task.resume(); });
    }
    [[nodiscard]] Result await_resume() { return std::move(*result_); }

  private:
    Background* background_;
    std::function<Result()> work_;
    std::optional<Result> result_;
};

/// Everything from outside that makes one moment differ from another. All outlive whoever is handed
/// them.
struct Surroundings {
    Clock& clock;
    RandomSource& random;
    Background& background;
};

}  // namespace velmora
