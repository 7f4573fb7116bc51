// A send log of 100,000 entries: reading it whole, and reading who was sent.

#include <benchmark/benchmark.h>

#include <QFileInfo>
#include <QTemporaryDir>

#include "bench_home.h"
#include "platform/rehearsal/rehearsal_platform.h"
#include "storage/send_log.h"

using namespace Qt::StringLiterals;

namespace velmora {

namespace {

const QString batch = u"Friends 2025-03-14"_s;

class LogBench : public benchmark::Fixture {
  public:
    LogBench() {
        std::vector<LogEntry> entries;
        for (int n = 0; n < 100'000; ++n)
            entries.push_back({.id = {},
                               .time = clock_.now() + n,
                               .batch = batch,
                               .name = u"Given%1 Family%2"_s.arg(n).arg(n % 997),
                               .phone = benchPhone(n),
                               .service = u"iMessage"_s,
                               .line = u"+12125550001"_s,
                               .status = u"sent"_s,
                               .detail = n % 20 == 0 ? u"Said \"no\", then left."_s : QString()});
        static_cast<void>(log.load(batch));
        log.rewrite(batch, entries);
        bytes = QFileInfo(log.logFile(batch)).size();
    }

  private:
    QTemporaryDir folder_;
    VirtualClock clock_{Moment{763657200.0}};
    // As in the application, whose platform decides how memory is kept.
    Platform platform_ = makeRehearsalPlatform(clock_, folder_.path());
    SupportFolder support_{folder_.path()};

  protected:
    SendLog log{support_, clock_};
    qint64 bytes = 0;
};

BENCHMARK_DEFINE_F(LogBench, load)(benchmark::State& state) {
    for (auto _ : state)
        benchmark::DoNotOptimize(log.load(batch));
    state.SetBytesProcessed(static_cast<int64_t>(state.iterations()) * bytes);
}
BENCHMARK_REGISTER_F(LogBench, load)->Unit(benchmark::kMillisecond);

BENCHMARK_DEFINE_F(LogBench, alreadySent)(benchmark::State& state) {
    for (auto _ : state)
        benchmark::DoNotOptimize(log.alreadySent(batch));
    state.SetBytesProcessed(static_cast<int64_t>(state.iterations()) * bytes);
}
BENCHMARK_REGISTER_F(LogBench, alreadySent)->Unit(benchmark::kMillisecond);

}  // namespace

}  // namespace velmora

BENCHMARK_MAIN();
