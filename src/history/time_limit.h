#pragma once

#include <chrono>

struct sqlite3;

namespace velmora {

/// Interrupts what the connection does once the time is over, as long as this lives. A history that
/// is damaged or made to, such as with a view without end, would hold the window up for ever.
class TimeLimit {
  public:
    /// `connection` outlives it.
    TimeLimit(sqlite3* connection, double seconds);
    ~TimeLimit();
    TimeLimit(const TimeLimit&) = delete;
    TimeLimit& operator=(const TimeLimit&) = delete;

  private:
    using Clock = std::chrono::steady_clock;

    sqlite3* connection_;
    std::chrono::time_point<Clock, std::chrono::duration<double>> end_;
};

}  // namespace velmora
