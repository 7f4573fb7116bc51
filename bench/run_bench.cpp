// A whole run of 60 people on the virtual clock: waits, faults of every kind, the final check; with
// the real script text, a real history and a real log on the disk.

#include <benchmark/benchmark.h>

#include <QCoreApplication>
#include <QDir>
#include <QTemporaryDir>

#include "bench_home.h"
#include "platform/rehearsal/history_writer.h"
#include "platform/rehearsal/rehearsal_platform.h"
#include "storage/files.h"

using namespace Qt::StringLiterals;

namespace velmora {

namespace {

constexpr int people = 60;
const QString line = u"+12125550001"_s;

const std::array<const char*, 7> faults = {
    R"({ "iMessage": { "error": 22 } })",
    R"({ "error": 22 })",
    R"({ "scriptError": "Messages got an error: Can't get participant." })",
    R"({ "sentAfter": 50, "deliveredAfter": null })",
    R"({ "iMessage": { "recordAfter": 21, "error": 22 } })",
    R"({ "line": "+12125550002" })",
    R"({ "recordAfter": null })",
};

// One person in so many is faulty, each kind of fault in turn.
QByteArray messagesSettings(int oneFaultyIn) {
    QByteArrayList entries;
    for (int n = 0; n < people; n += oneFaultyIn)
        entries.append("\"" + benchPhone(n).toUtf8() +
                       "\": " + faults.at(static_cast<size_t>(n / oneFaultyIn) % faults.size()));
    return "{ \"line\": \"" + line.toUtf8() + "\", \"people\": { " + entries.join(", ") + " } }";
}

/// A home of its own, with the settings of Messages and an empty history.
class RunHome {
  public:
    explicit RunHome(int oneFaultyIn) {
        const QString messages = folder_.path() + u"/Library/Messages"_s;
        if (!createPrivateFolder(messages) ||
            !replaceFile(messages + u"/messages.json"_s, messagesSettings(oneFaultyIn)) ||
            !HistoryWriter::open(messagesHistoryPath(folder_.path())))
            qFatal("The benchmark's home folder could not be made.");
    }
    [[nodiscard]] QString path() const { return folder_.path(); }

  private:
    QTemporaryDir folder_;
};

void run(const QString& home, VirtualSurroundings& world, qint64& paused) {
    const Platform platform = makeRehearsalPlatform(world.clock, home);
    SupportFolder support(platform.applicationSupport);
    SendLog log(support, world.clock);
    MessageSender sender(*platform.scripts);
    Runner runner({sender, *platform.desktop, log, messagesHistoryPath(home), world.handed()});
    QObject::connect(&runner, &Runner::stateChanged, &runner, [&] {
        if (runner.state == Runner::State::paused) {
            ++paused;
            world.clock.after(90, [&runner] { runner.resume(); });
        }
    });
    std::vector<Runner::Item> items;
    for (int n = 0; n < people; ++n)
        items.push_back(
            {u"Person %1"_s.arg(n), benchPhone(n), u"Hey Person %1, want in?"_s.arg(n)});
    AppConfig config;
    config.senderNumber = line;
    runner.start(u"Everyone"_s, items, config);
    world.clock.runUntilIdle();
    if (runner.done.value() != people)
        qFatal("The run did not handle everyone.");
}

void runOf60(benchmark::State& state) {
    const int oneFaultyIn = static_cast<int>(state.range());
    qint64 paused = 0;
    double seconds = 0;
    for (auto _ : state) {
        state.PauseTiming();
        auto home = std::make_unique<RunHome>(oneFaultyIn);
        VirtualSurroundings world;
        paused = 0;
        state.ResumeTiming();
        run(home->path(), world, paused);
        seconds = world.clock.uptime();
        state.PauseTiming();
        home.reset();
        state.ResumeTiming();
    }
    state.counters["pauses"] = static_cast<double>(paused);
    state.counters["simulated_s"] = seconds;
}
// Every kind of fault once, and often; then somebody is never recorded from the first third on, and
// the history is asked for them at every wait.
BENCHMARK(runOf60)->ArgName("oneFaultyIn")->Arg(8)->Arg(3)->Unit(benchmark::kMillisecond);

}  // namespace

}  // namespace velmora

int main(int argc, char** argv) {
    const QCoreApplication application(argc, argv);
    // As in the application, whose platform decides how memory is kept before any history is open.
    velmora::VirtualSurroundings world;
    const velmora::Platform platform =
        velmora::makeRehearsalPlatform(world.clock, QDir::tempPath());
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
