#include "core/moment.h"

#include <cmath>

namespace velmora {

Moment momentOf(const QDateTime& dateTime) {
    return {static_cast<double>(dateTime.toMSecsSinceEpoch()) / 1000.0 - referenceEpoch};
}

QDateTime localTime(Moment moment) {
    const double milliseconds = std::floor((moment.seconds + referenceEpoch) * 1000.0);
    return QDateTime::fromMSecsSinceEpoch(static_cast<qint64>(milliseconds));
}

}  // namespace velmora
