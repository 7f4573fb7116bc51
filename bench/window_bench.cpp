// The real window over an address book of 10,000 people, in real time: run it on a display, in the
// folder of the other benchmarks. Each figure is the median of ten.

#include <QElapsedTimer>
#include <QEventLoop>
#include <QFile>
#include <QGuiApplication>
#include <QProcess>
#include <QQuickItem>
#include <QTest>
#include <QTimer>
#include <algorithm>
#include <cstdio>
#include <ctime>
#include <functional>

#include "bench_home.h"
#include "core/system_surroundings.h"
#include "platform/rehearsal/rehearsal_platform.h"
#include "ui/window/main_window.h"

using namespace Qt::StringLiterals;

namespace velmora {

namespace {

constexpr int rounds = 10;
constexpr int scrollPoints = 40;

double monotonicMilliseconds(clockid_t clock) {
    timespec now{};
    clock_gettime(clock, &now);
    return static_cast<double>(now.tv_sec) * 1e3 + static_cast<double>(now.tv_nsec) / 1e6;
}

double median(std::vector<double> values) {
    std::ranges::sort(values);
    return (values[values.size() / 2] + values[(values.size() - 1) / 2]) / 2;
}

void report(const char* what, const std::vector<double>& values, const char* unit) {
    std::printf("%-44s median %7.2f %s, worst %7.2f\n", what, median(values), unit,
                *std::ranges::max_element(values));
}

/// Velmora as a user has it: the system's time, and a home that has been used before.
class BenchWindow {
  public:
    explicit BenchWindow(const QString& home)
        : platform_(makeRehearsalPlatform(clock_, home)),
          model_(Doors{*platform_.contacts, *platform_.scripts, *platform_.accountPreferences,
                       *platform_.desktop},
                 {clock_, random_, background_}, {platform_.home, platform_.applicationSupport}),
          main_(model_, nullptr) {
        QObject::connect(&main_.window(), &QQuickWindow::frameSwapped, &main_.window(),
                         [this] { ++frames_; });
        main_.show();
    }

    [[nodiscard]] AppModel& model() { return model_; }
    [[nodiscard]] QQuickWindow& window() { return main_.window(); }

    void untilFrame() {
        const int before = frames_;
        if (!QTest::qWaitFor([&] { return frames_ > before; }))
            qFatal("Nothing was drawn.");
    }
    void untilLoaded() {
        while (!model_.bootstrapped)
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        QTest::qWait(500);
    }
    /// Milliseconds from `action` to the end of the frame that shows what it did.
    double timed(const std::function<void()>& action) {
        QTest::qWait(150);
        QElapsedTimer timer;
        timer.start();
        const int before = frames_;
        action();
        if (frames_ == before)
            untilFrame();
        return static_cast<double>(timer.nsecsElapsed()) / 1e6;
    }

  private:
    SystemClock clock_;
    SystemRandomSource random_;
    ThreadBackground background_;
    Platform platform_;
    AppModel model_;
    MainWindow main_;
    int frames_ = 0;
};

/// In a process of its own, which was started at `started`.
int firstFrame(double started, const QString& home) {
    BenchWindow bench(home);
    bench.untilFrame();
    std::printf("%f\n", monotonicMilliseconds(CLOCK_MONOTONIC) - started);
    return 0;
}

void measureFirstFrame(const QString& home) {
    std::vector<double> times;
    for (int round = 0; round < rounds; ++round) {
        QProcess process;
        process.start(QCoreApplication::applicationFilePath(),
                      {QString::number(monotonicMilliseconds(CLOCK_MONOTONIC), 'f', 3), home});
        process.waitForFinished(-1);
        times.push_back(process.readAllStandardOutput().trimmed().toDouble());
    }
    report("first frame after the process starts", times, "ms");
}

double memoryInMegabytes() {
    QFile file(u"/proc/self/smaps_rollup"_s);
    if (!file.open(QIODevice::ReadOnly))
        qFatal("The memory of the process cannot be read.");
    for (const QByteArray& line : file.readAll().split('\n'))
        if (line.startsWith("Pss:"))
            return line.mid(4).trimmed().chopped(3).toDouble() / 1024;
    return 0;
}

void measureHands(BenchWindow& bench) {
    std::vector<double> keys;
    std::vector<double> ticks;
    std::vector<double> scrolls;
    std::vector<double> notches;
    QQuickWindow& window = bench.window();
    const QList<QQuickItem*> items = window.findChildren<QQuickItem*>();
    const auto search = std::ranges::find_if(items, [](const QQuickItem* item) {
        return item->property("placeholderText") == u"Search people"_s;
    });
    const QPoint list(500, 500);
    const auto people = std::ranges::find_if(items, [](const QQuickItem* item) {
        return QByteArrayView(item->metaObject()->className()).startsWith("RecipientsList");
    });
    if (search == items.end() || people == items.end())
        qFatal("The search field or the list was not found.");
    // As a track pad moves it: at once, while the finger does.
    for (int round = 0; round < rounds; ++round) {
        const double place = (*people)->property("contentY").toDouble() + scrollPoints;
        scrolls.push_back(bench.timed([&] { (*people)->setProperty("contentY", place); }));
    }
    for (int round = 0; round < rounds; ++round) {
        notches.push_back(bench.timed([&] {
            QWheelEvent wheel(list, window.mapToGlobal(list), {}, {0, -120}, Qt::NoButton, {},
                              Qt::NoScrollPhase, false);
            wheel.setTimestamp(static_cast<quint64>(monotonicMilliseconds(CLOCK_MONOTONIC)));
            QCoreApplication::sendEvent(&window, &wheel);
        }));
    }
    (*search)->forceActiveFocus();
    // Each leaves fewer people than the one before, or more.
    for (const Qt::Key key :
         {Qt::Key_1, Qt::Key_2, Qt::Key_3, Qt::Key_4, Qt::Key_Backspace, Qt::Key_Backspace,
          Qt::Key_Backspace, Qt::Key_Backspace, Qt::Key_9, Qt::Key_Backspace}) {
        const int before = (*people)->property("count").toInt();
        keys.push_back(bench.timed([&] { QTest::keyClick(&window, key); }));
        if ((*people)->property("count").toInt() == before)
            qFatal("A key left the list as it was.");
    }
    bench.model().searchText = QString();
    QTest::qWait(500);
    for (int round = 0; round < rounds; ++round) {
        const QString id = bench.model().recipients()[static_cast<size_t>(round)].id;
        ticks.push_back(bench.timed([&] { bench.model().setSelected(id, true); }));
    }
    report("a keystroke in the search field", keys, "ms");
    report("ticking a box", ticks, "ms");
    report("a scroll step of 40 points", scrolls, "ms");
    report("first frame after a notch of the wheel", notches, "ms");
    report("memory (PSS)", {memoryInMegabytes()}, "MB");
}

/// Waits as the application does, where QTest::qWait looks around a hundred times a second.
void letLive(int milliseconds) {
    QEventLoop loop;
    QTimer::singleShot(milliseconds, &loop, &QEventLoop::quit);
    loop.exec();
}

void measureWaiting(BenchWindow& bench) {
    bench.model().requestRun();
    bench.model().confirmRun();
    while (!bench.model().runner().nextIn.value())
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    std::vector<double> shares;
    for (int round = 0; round < rounds; ++round) {
        const double before = monotonicMilliseconds(CLOCK_PROCESS_CPUTIME_ID);
        letLive(5000);
        shares.push_back((monotonicMilliseconds(CLOCK_PROCESS_CPUTIME_ID) - before) / 50);
    }
    report("one core's share while a run waits", shares, "%");
    bench.model().runner().stop();
    QTest::qWait(1000);
}

}  // namespace

}  // namespace velmora

int main(int argc, char** argv) {
    using namespace velmora;
    const QGuiApplication application(argc, argv);
    if (argc == 3)
        return firstFrame(QByteArray(argv[1]).toDouble(), QString::fromUtf8(argv[2]));
    const QString home = usedHome(10'000);
    measureFirstFrame(home);
    BenchWindow bench(home);
    bench.untilLoaded();
    measureHands(bench);
    measureWaiting(bench);
    return 0;
}
