// A list of 10,000 people: loading it against a history of 1,000,000 messages beside the bare
// statements that this takes, searching it, and rendering everyone's text.

#include <benchmark/benchmark.h>
#include <sqlite3.h>

#include <QCoreApplication>

#include "bench_home.h"

using namespace Qt::StringLiterals;

namespace velmora {

namespace {

constexpr int people = 10'000;
constexpr int messages = 1'000'000;

void loadList(benchmark::State& state) {
    BenchModel model(benchHome(people, messages));
    for (auto _ : state)
        model->loadList();
    state.counters["people"] = static_cast<double>(model->recipients().size());
}
BENCHMARK(loadList)->Unit(benchmark::kMillisecond)->MinTime(3);

// The look-ups of loadList and nothing else: each statement prepared, bound, run and finalized.
void bareStatements(benchmark::State& state) {
    const QString path = messagesHistoryPath(benchHome(people, messages));
    const char* sql =
        "SELECT m.service, m.destination_caller_id FROM chat_handle_join ch\n"
        "JOIN handle h ON h.ROWID = ch.handle_id\n"
        "JOIN chat c ON c.ROWID = ch.chat_id AND c.style = 45\n"
        "JOIN chat_message_join j ON j.chat_id = c.ROWID\n"
        "JOIN message m ON m.ROWID = j.message_id\n"
        "WHERE h.id IN (?,?,?) AND m.error = 0\n"
        "ORDER BY m.date DESC LIMIT 1";
    int found = 0;
    for (auto _ : state) {
        found = 0;
        sqlite3* db = nullptr;
        sqlite3_open_v2(path.toUtf8().constData(), &db, SQLITE_OPEN_READONLY, nullptr);
        for (int n = 0; n < people; ++n) {
            const QByteArray phone = benchPhone(n).toUtf8();
            sqlite3_stmt* statement = nullptr;
            sqlite3_prepare_v2(db, sql, -1, &statement, nullptr);
            sqlite3_bind_text(statement, 1, phone.constData(), -1, SQLITE_TRANSIENT);
            sqlite3_bind_text(statement, 2, phone.constData() + 1, -1, SQLITE_TRANSIENT);
            sqlite3_bind_text(statement, 3, phone.constData() + 2, -1, SQLITE_TRANSIENT);
            while (sqlite3_step(statement) == SQLITE_ROW) {
                benchmark::DoNotOptimize(sqlite3_column_text(statement, 0));
                benchmark::DoNotOptimize(sqlite3_column_text(statement, 1));
                ++found;
            }
            sqlite3_finalize(statement);
        }
        sqlite3_close(db);
    }
    state.counters["threads"] = found;
}
BENCHMARK(bareStatements)->Unit(benchmark::kMillisecond)->MinTime(3);

void visibleRecipients(benchmark::State& state, const QString& typed) {
    BenchModel model(benchHome(people, 1000));
    model->searchText = typed;
    size_t shown = 0;
    for (auto _ : state)
        shown = model->visibleRecipients().size();
    state.counters["shown"] = static_cast<double>(shown);
}
BENCHMARK_CAPTURE(visibleRecipients, all, QString())->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(visibleRecipients, name, u"given12"_s)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(visibleRecipients, digits, u"0042"_s)->Unit(benchmark::kMillisecond);

// Writing the message: the settings file, and everyone's text as a run of all would need it.
void everyonesText(benchmark::State& state) {
    BenchModel model(benchHome(people, 1000));
    int edit = 0;
    for (auto _ : state) {
        model->setCurrentTemplate(
            u"Hey {first_name}, %1?{custom_note}\n---\n{first_name}! %1"_s.arg(++edit));
        for (const Recipient& each : model->recipients())
            benchmark::DoNotOptimize(model->textFor(each));
    }
}
BENCHMARK(everyonesText)->Unit(benchmark::kMillisecond);

// Checking one box: the selection and the settings file.
void tickOneBox(benchmark::State& state) {
    BenchModel model(benchHome(people, 1000));
    model->selectShown();
    bool on = false;
    for (auto _ : state) {
        model->setSelected(u"person-42"_s, on);
        on = !on;
    }
}
BENCHMARK(tickOneBox)->Unit(benchmark::kMillisecond);

}  // namespace

}  // namespace velmora

int main(int argc, char** argv) {
    const QCoreApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
