#include "storage/log_time.h"

#include <QTimeZone>
#include <algorithm>
#include <chrono>
#include <cmath>

namespace velmora {

namespace {

constexpr int secondsPerMinute = 60;
constexpr int secondsPerHour = 3600;

const QTimeZone& logZone() {
    static const QTimeZone zone = [] {
        const QTimeZone current = QTimeZone::systemTimeZone();
        return current.isValid() ? current : QTimeZone::utc();
    }();
    return zone;
}

// Reads a text from its front; once something does not fit, it stays failed.
class Scanner {
  public:
    explicit Scanner(QStringView text) : rest_(text) {}

    int number(qsizetype digits, int lowest, int highest) {
        int value = 0;
        for (qsizetype count = 0; count < digits; ++count) {
            const char16_t character = next();
            failed_ |= character < u'0' || character > u'9';
            value = value * 10 + (character - u'0');
        }
        failed_ |= value < lowest || value > highest;
        return failed_ ? lowest : value;
    }
    void expect(char16_t character) { failed_ |= next() != character; }
    char16_t next() {
        if (rest_.isEmpty())
            return 0;
        const char16_t character = rest_.front().unicode();
        rest_ = rest_.sliced(1);
        return character;
    }
    [[nodiscard]] bool isComplete() const { return !failed_ && rest_.isEmpty(); }

  private:
    QStringView rest_;
    bool failed_ = false;
};

int scanTimeOfDay(Scanner& scanner) {
    const int hours = scanner.number(2, 0, 23);
    scanner.expect(u':');
    return hours * secondsPerHour + scanner.number(2, 0, 59) * secondsPerMinute;
}

QDateTime utcTime(Moment moment) {
    // From the year 1 to 9999, which is what four digits and the calendar hold.
    constexpr double earliest = -62135510400.0;
    constexpr double latest = 253402214400.0;
    const double unixTime = std::clamp(moment.seconds + referenceEpoch, earliest, latest);
    return QDateTime::fromSecsSinceEpoch(static_cast<qint64>(std::floor(unixTime)),
                                         QTimeZone::utc());
}

}  // namespace

QString formatLogTime(Moment moment) {
    return formatLogTime(moment, logZone().offsetFromUtc(utcTime(moment)) / secondsPerMinute);
}

QString formatLogTime(Moment moment, int offset) {
    const QDateTime local = utcTime(moment).addSecs(qint64{offset} * secondsPerMinute);
    const QDate date = local.date();
    const QTime time = local.time();
    const QString text =
        QString::asprintf("%04d-%02d-%02dT%02d:%02d:%02d", date.year(), date.month(), date.day(),
                          time.hour(), time.minute(), time.second());
    if (offset == 0)
        return text + u'Z';
    const int size = std::abs(offset);
    return text + QString::asprintf("%c%02d:%02d", offset < 0 ? '-' : '+', size / 60, size % 60);
}

std::optional<Moment> parseLogTime(QStringView text) {
    static_cast<void>(logZone());
    Scanner scanner(text);
    const int year = scanner.number(4, 1, 9999);
    scanner.expect(u'-');
    const auto month = static_cast<unsigned>(scanner.number(2, 1, 12));
    scanner.expect(u'-');
    const auto day = static_cast<unsigned>(scanner.number(2, 1, 31));
    scanner.expect(u'T');
    int secondOfDay = scanTimeOfDay(scanner);
    scanner.expect(u':');
    secondOfDay += scanner.number(2, 0, 59);
    const char16_t zone = scanner.next();
    if (zone == u'+')
        secondOfDay -= scanTimeOfDay(scanner);
    else if (zone == u'-')
        secondOfDay += scanTimeOfDay(scanner);
    const bool hasZone = zone == u'Z' || zone == u'+' || zone == u'-';
    const std::chrono::year_month_day date{std::chrono::year(year), std::chrono::month(month),
                                           std::chrono::day(day)};
    if (!hasZone || !scanner.isComplete() || !date.ok())
        return std::nullopt;
    const std::chrono::sys_seconds midnight = std::chrono::sys_days(date);
    return Moment{static_cast<double>(midnight.time_since_epoch().count()) + secondOfDay -
                  referenceEpoch};
}

}  // namespace velmora
