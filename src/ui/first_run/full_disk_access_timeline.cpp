#include "ui/first_run/full_disk_access_timeline.h"

#include <algorithm>
#include <cmath>

namespace velmora {

namespace {

constexpr double loop = 7.0;
constexpr double switchIsOn = 5.0;

/// How far the time is from `start` on its way through `length` seconds, slow at both ends.
double eased(double time, double start, double length) {
    const double part = std::clamp((time - start) / length, 0.0, 1.0);
    return part * part * (3 - (2 * part));
}

}  // namespace

double FullDiskAccessTimeline::phase(Moment moment) {
    const double rest = std::fmod(moment.seconds, loop);
    return rest < 0 ? rest + loop : rest;
}

void FullDiskAccessTimeline::setTime(double time) {
    if (time == time_)
        return;
    time_ = time;
    Q_EMIT timeChanged();
}

double FullDiskAccessTimeline::time() const {
    return still_ ? switchIsOn : time_;
}

void FullDiskAccessTimeline::setStill(bool still) {
    if (still == still_)
        return;
    still_ = still;
    Q_EMIT timeChanged();
}

double FullDiskAccessTimeline::opacity() const {
    if (time() < 0.3)
        return std::min(1.0, time() / 0.3);
    return time() <= 6.3 ? 1.0 : std::max(0.0, 1 - ((time() - 6.3) / 0.6));
}

double FullDiskAccessTimeline::pointerX() const {
    return 250 + (23 * eased(time(), 0.4, 1.6));
}

double FullDiskAccessTimeline::pointerY() const {
    return 180 - (90 * eased(time(), 0.4, 1.6));
}

double FullDiskAccessTimeline::pointerScale() const {
    return time() > 2.05 && time() < 2.35 ? 0.86 : 1.0;
}

double FullDiskAccessTimeline::switchedOn() const {
    return eased(time(), 2.2, 0.3);
}

}  // namespace velmora
