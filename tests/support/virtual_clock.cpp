#include "support/virtual_clock.h"

#include <algorithm>

namespace velmora {

void VirtualClock::after(double seconds, std::function<void()> action) {
    waiting_.emplace(elapsed_ + std::max(seconds, 0.0), std::move(action));
}

bool VirtualClock::runUntilIdle(double limit) {
    const double deadline = elapsed_ + limit;
    while (stepBefore(deadline)) {
    }
    return waiting_.empty();
}

void VirtualClock::advance(double seconds) {
    const double deadline = elapsed_ + seconds;
    while (stepBefore(deadline)) {
    }
    elapsed_ = deadline;
}

bool VirtualClock::stepBefore(double deadline) {
    if (waiting_.empty() || waiting_.begin()->first > deadline)
        return false;
    auto next = waiting_.extract(waiting_.begin());
    elapsed_ = next.key();
    next.mapped()();
    return true;
}

}  // namespace velmora
