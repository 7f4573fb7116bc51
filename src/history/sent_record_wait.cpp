#include "history/sent_record_wait.h"

#include <algorithm>

#include "history/messages_db.h"

namespace velmora {

namespace {

std::optional<SentRecord> readLastSent(const QString& historyPath, const QString& phone,
                                       qint64 since) {
    auto history = MessagesDB::open(historyPath);
    if (!history)
        return std::nullopt;
    return history->lastSent(phone, since).value_or(std::nullopt);
}

}  // namespace

QCoro::Task<std::optional<SentRecord>> waitForSentRecord(Surroundings surroundings,
                                                         QString historyPath, QString phone,
                                                         qint64 since, double timeout) {
    constexpr double secondsBetweenReadings = 2;
    constexpr double longest = 3600;
    const double deadline = surroundings.clock.uptime() + std::min(timeout, longest);
    std::optional<SentRecord> last;
    // Also false at once when the timeout is no number.
    while (surroundings.clock.uptime() < deadline) {
        InBackground<std::optional<SentRecord>> reading(
            surroundings.background,
            [historyPath, phone, since] { return readLastSent(historyPath, phone, since); });
        last = co_await reading;
        if (last && last->isConclusive())
            co_return last;
        co_await Sleep(surroundings.clock, secondsBetweenReadings);
    }
    co_return last;
}

}  // namespace velmora
