#include "storage/app_config.h"

#include <QTime>
#include <algorithm>
#include <vector>

namespace velmora {

namespace {

std::optional<qint64> wholeNumber(QStringView text) {
    const bool isSigned = text.startsWith(u'+') || text.startsWith(u'-');
    const QStringView digits = text.sliced(isSigned ? 1 : 0);
    const bool onlyDigits = std::ranges::all_of(
        digits, [](QChar character) { return character >= u'0' && character <= u'9'; });
    bool fits = false;
    const qint64 value = text.toLongLong(&fits);
    if (digits.isEmpty() || !onlyDigits || !fits)
        return std::nullopt;
    return value;
}

}  // namespace

std::optional<qint64> minutesOfDay(const QString& text) {
    std::vector<qint64> numbers;
    for (const QStringView piece : QStringView(text).split(u':', Qt::SkipEmptyParts))
        if (const auto number = wholeNumber(piece))
            numbers.push_back(*number);
    if (numbers.size() != 2)
        return std::nullopt;
    qint64 minutes = 0;
    const bool overflows = __builtin_mul_overflow(numbers[0], qint64{60}, &minutes) ||
                           __builtin_add_overflow(minutes, numbers[1], &minutes);
    return overflows ? std::nullopt : std::optional(minutes);
}

bool isOutsideSendingHours(const AppConfig& config, Moment moment) {
    const auto start = minutesOfDay(config.quietStart);
    const auto end = minutesOfDay(config.quietEnd);
    if (!start || !end)
        return false;
    const QTime time = localTime(moment).time();
    const qint64 minute = qint64{time.hour()} * 60 + time.minute();
    if (*end >= *start)
        return minute < *start || minute > *end;
    return minute > *end && minute < *start;
}

}  // namespace velmora
