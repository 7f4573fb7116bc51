#include "core/system_surroundings.h"

#include <QRandomGenerator>
#include <QTimer>
#include <algorithm>
#include <chrono>
#include <cmath>

namespace velmora {

SystemClock::SystemClock() {
    timer_.start();
}

Moment SystemClock::now() const {
    const auto sinceEpoch = std::chrono::system_clock::now().time_since_epoch();
    const auto whole = std::chrono::floor<std::chrono::seconds>(sinceEpoch);
    const std::chrono::duration<double> rest = sinceEpoch - whole;
    return {static_cast<double>(whole.count()) - referenceEpoch + rest.count()};
}

double SystemClock::uptime() const {
    return static_cast<double>(timer_.nsecsElapsed()) / 1e9;
}

void SystemClock::after(double seconds, std::function<void()> action) {
    // A timer counts milliseconds in 31 bits; whoever waits longer than that waits again.
    constexpr double longestMilliseconds = 2'000'000'000.0;
    const double milliseconds = std::clamp(seconds * 1000.0, 0.0, longestMilliseconds);
    QTimer::singleShot(std::chrono::milliseconds(static_cast<qint64>(std::ceil(milliseconds))),
                       Qt::PreciseTimer, this, std::move(action));
}

quint64 SystemRandomSource::word() {
    return QRandomGenerator::system()->generate64();
}

ThreadBackground::ThreadBackground() {
    pool_.setMaxThreadCount(1);
}

ThreadBackground::~ThreadBackground() {
    pool_.waitForDone();
}

void ThreadBackground::run(std::function<void()> work, std::function<void()> finished) {
    pool_.start([this, work = std::move(work), finished = std::move(finished)]() mutable {
        work();
        QMetaObject::invokeMethod(this, std::move(finished), Qt::QueuedConnection);
    });
}

}  // namespace velmora
