#include "history/time_limit.h"

#include <sqlite3.h>

namespace velmora {

TimeLimit::TimeLimit(sqlite3* connection, double seconds)
    : connection_(connection), end_(Clock::now() + std::chrono::duration<double>(seconds)) {
    constexpr int stepsBetweenLooks = 10'000;
    const auto isOver = [](void* limit) {
        return Clock::now() > static_cast<TimeLimit*>(limit)->end_ ? 1 : 0;
    };
    sqlite3_progress_handler(connection_, stepsBetweenLooks, isOver, this);
}

TimeLimit::~TimeLimit() {
    sqlite3_progress_handler(connection_, 0, nullptr, nullptr);
}

}  // namespace velmora
