#pragma once

#include <coroutine>
#include <optional>

#include "core/clock.h"
#include "sending/runner.h"

namespace velmora {

/// The suspension of a paused run, and the answer that ends it.
class Runner::Pause {
  public:
    /// What the run awaits. It only points to the pause, for g++ 12 awaits a copy of a local.
    class Answer {
      public:
        explicit Answer(Pause& pause) : pause_(&pause) {}

        [[nodiscard]] bool await_ready() const noexcept { return pause_->answer_.has_value(); }
        void await_suspend(std::coroutine_handle<> task) noexcept { pause_->task_ = task; }
        [[nodiscard]] bool await_resume() const noexcept { return pause_->answer_.value_or(false); }

      private:
        Pause* pause_;
    };

    explicit Pause(Clock& clock) : clock_(&clock) {}

    /// Ends the pause at the event loop's next turn.
    void end(bool goOn) {
        answer_ = goOn;
        if (task_)
            clock_->after(0, [task = task_] { task.resume(); });
    }

    /// Lets the task unwind right now.
    void abandon() const {
        if (task_)
            task_.resume();
    }

  private:
    Clock* clock_;
    std::optional<bool> answer_;
    std::coroutine_handle<> task_;
};

}  // namespace velmora
