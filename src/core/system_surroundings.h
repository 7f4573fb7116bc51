#pragma once

#include <QElapsedTimer>
#include <QObject>
#include <QThreadPool>

#include "core/surroundings.h"

namespace velmora {

/// The computer's own time: the wall clock for stamps, the monotonic one with Qt's timers for
/// waits.
class SystemClock final : public QObject, public Clock {
    Q_OBJECT

  public:
    SystemClock();

    [[nodiscard]] Moment now() const override;
    [[nodiscard]] double uptime() const override;
    /// Calls after 2,000,000 seconds, about 23 days, for anything longer; whoever waits longer than
    /// that looks at the time and waits again.
    void after(double seconds, std::function<void()> action) override;

  private:
    QElapsedTimer timer_;
};

/// The system's cryptographic random source.
class SystemRandomSource final : public RandomSource {
  public:
    [[nodiscard]] quint64 word() override;
};

/// One thread for the work, a piece at a time, so that reading a slow disk never holds up the
/// interface. Its end waits for all work handed in.
class ThreadBackground final : public QObject, public Background {
    Q_OBJECT

  public:
    ThreadBackground();
    ~ThreadBackground() override;

    void run(std::function<void()> work, std::function<void()> finished) override;

  private:
    QThreadPool pool_;
};

}  // namespace velmora
