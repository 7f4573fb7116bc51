#include "ui/controls/clock_fields.h"

#include <QLocale>
#include <QRegularExpression>

using namespace Qt::StringLiterals;

namespace velmora {

namespace {

constexpr int hoursOfDay = 24;
constexpr int hoursOfHalf = 12;
constexpr int minutesOfHour = 60;

int wrapped(int value, int count) {
    return ((value % count) + count) % count;
}

QString separatorOf(const QString& format) {
    static const QRegularExpression between(u"[hH]+((?:'[^']*'|[^hHm'])+)m"_s);
    const QRegularExpressionMatch match = between.match(format);
    return match.hasMatch() ? match.captured(1).remove(u'\'') : u":"_s;
}

}  // namespace

ClockFields::ClockFields(QObject* parent) : QObject(parent) {
    const QString format = QLocale().timeFormat(QLocale::ShortFormat);
    const qsizetype half = format.indexOf(u"ap", 0, Qt::CaseInsensitive);
    twelveHour_ = half >= 0;
    halfFirst_ = half < format.indexOf(u'h', 0, Qt::CaseInsensitive);
    separator_ = separatorOf(format);
}

void ClockFields::setHour(int hour) {
    if (hour == hour_)
        return;
    hour_ = hour;
    Q_EMIT changed();
}

void ClockFields::setMinute(int minute) {
    if (minute == minute_)
        return;
    minute_ = minute;
    Q_EMIT changed();
}

QString ClockFields::hourText() const {
    if (!twelveHour_)
        return u"%1"_s.arg(hour_, 2, 10, '0'_L1);
    const int shown = hour_ % hoursOfHalf;
    return QString::number(shown == 0 ? hoursOfHalf : shown);
}

QString ClockFields::minuteText() const {
    return u"%1"_s.arg(minute_, 2, 10, '0'_L1);
}

QString ClockFields::halfText() const {
    return hour_ < hoursOfHalf ? QLocale().amText() : QLocale().pmText();
}

void ClockFields::stepHour(int delta) {
    endTyping();
    Q_EMIT picked(wrapped(hour_ + delta, hoursOfDay), minute_);
}

void ClockFields::stepMinute(int delta) {
    endTyping();
    Q_EMIT picked(hour_, wrapped(minute_ + delta, minutesOfHour));
}

void ClockFields::stepHalf(int delta) {
    endTyping();
    Q_EMIT picked(wrapped(hour_ + (hoursOfHalf * delta), hoursOfDay), minute_);
}

bool ClockFields::typeHour(const QString& character) {
    const std::optional<int> number = typed(character, twelveHour_ ? hoursOfHalf : hoursOfDay - 1);
    if (!number)
        return false;
    if (!twelveHour_)
        Q_EMIT picked(*number, minute_);
    else if (*number > 0)
        Q_EMIT picked(fromTwelve(*number), minute_);
    return true;
}

bool ClockFields::typeMinute(const QString& character) {
    const std::optional<int> number = typed(character, minutesOfHour - 1);
    if (number)
        Q_EMIT picked(hour_, *number);
    return number.has_value();
}

bool ClockFields::typeHalf(const QString& character) {
    const bool morning = character.compare(QLocale().amText().left(1), Qt::CaseInsensitive) == 0;
    const bool evening = character.compare(QLocale().pmText().left(1), Qt::CaseInsensitive) == 0;
    if (character.isEmpty() || morning == evening)
        return false;
    Q_EMIT picked((hour_ % hoursOfHalf) + (evening ? hoursOfHalf : 0), minute_);
    return true;
}

std::optional<int> ClockFields::typed(const QString& character, int most) {
    if (character.size() != 1 || !character.front().isDigit())
        return std::nullopt;
    const int digit = character.front().digitValue();
    if (pending_) {
        const int both = (*pending_ * 10) + digit;
        pending_.reset();
        if (both <= most)
            return both;
    }
    if (digit * 10 <= most)
        pending_ = digit;
    return digit;
}

int ClockFields::fromTwelve(int shown) const {
    return (shown % hoursOfHalf) + (hour_ < hoursOfHalf ? 0 : hoursOfHalf);
}

}  // namespace velmora
