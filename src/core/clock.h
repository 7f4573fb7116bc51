#pragma once

#include <coroutine>
#include <functional>

#include "core/moment.h"

namespace velmora {

/// The time, handed in to whoever stamps or waits. Lives on the interface thread and outlives
/// everyone who waits on it; what is still waiting when it ends is never called.
class Clock {
  public:
    virtual ~Clock() = default;

    /// The wall clock's moment: for stamps. It may jump when the user or the network sets it.
    [[nodiscard]] virtual Moment now() const = 0;

    /// Seconds since an arbitrary start, never going back: for measuring waits.
    [[nodiscard]] virtual double uptime() const = 0;

    /// Calls `action` once on this thread, `seconds` from now; at the event loop's next turn when
    /// that is 0 or less. A clock may call earlier what is more than 23 days away. Never calls
    /// before it returns.
    virtual void after(double seconds, std::function<void()> action) = 0;
};

/// What a task awaits in order to go on later: `co_await Sleep(clock, seconds)`.
class [[nodiscard]] Sleep {
  public:
    Sleep(Clock& clock, double seconds) : clock_(&clock), seconds_(seconds) {}

    [[nodiscard]] bool await_ready() const noexcept { return false; }
    void await_suspend(std::coroutine_handle<> task) const {
        clock_->after(seconds_, [task] { task.resume(); });
    }
    void await_resume() const noexcept {}

  private:
    Clock* clock_;
    double seconds_;
};

}  // namespace velmora
