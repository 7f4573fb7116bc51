#pragma once

namespace velmora {

/// While one lives, what is freed goes back to the system at once instead of being kept for the
/// next of its size: for work that needs much memory for a moment and then leaves the user alone.
/// Does nothing with the C library's own allocator.
class FreedMemoryReturns {
  public:
    FreedMemoryReturns();
    ~FreedMemoryReturns();
    FreedMemoryReturns(const FreedMemoryReturns&) = delete;
    FreedMemoryReturns& operator=(const FreedMemoryReturns&) = delete;

  private:
    [[maybe_unused]] long delayBefore_ = 0;  // milliseconds
};

}  // namespace velmora
