#pragma once

#include <QDateTime>
#include <compare>

namespace velmora {

/// 2001-01-01 00:00:00 UTC, from which moments count, in seconds since 1970-01-01 00:00:00 UTC.
inline constexpr double referenceEpoch = 978307200.0;

/// An absolute point in time: seconds since 2001-01-01 00:00:00 UTC, with fractions. A QDateTime
/// stops at milliseconds, which is too coarse for what is stored and for what the history is asked.
struct Moment {
    double seconds = 0;

    friend auto operator<=>(const Moment&, const Moment&) = default;

    /// The moment `interval` seconds later (earlier when negative).
    friend Moment operator+(Moment moment, double interval) { return {moment.seconds + interval}; }
};

/// The moment of `dateTime`, to the millisecond.
[[nodiscard]] Moment momentOf(const QDateTime& dateTime);

/// `moment` in the user's current time zone, rounded down to the millisecond.
[[nodiscard]] QDateTime localTime(Moment moment);

}  // namespace velmora
