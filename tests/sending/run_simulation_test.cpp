#include <ctime>

#include "sending/sending_world.h"

namespace velmora {
namespace {

constexpr int crowd = 60;

/// A long run in a world of faults, whose user resumes every pause after a while.
struct Simulation : SendingWorld {
    Simulation() {
        const std::vector<QByteArray> faults = {
            R"({"iMessage": {"error": 22}})",
            R"({"error": 22})",
            R"({"scriptError": "Messages got an error: \"no, thanks\"."})",
            R"({"sentAfter": 50, "deliveredAfter": null})",
            R"({"iMessage": {"recordAfter": 21, "error": 22}})",
            R"({"recordAfter": 21, "error": 22})",
            R"({"line": "+15550100002"})",
            R"({"line": "me@example.com"})",
            R"({"recordAfter": null})",
        };
        std::map<QString, QByteArray> people;
        for (int n = 0; n < crowd; ++n) {
            if (const size_t kind = static_cast<size_t>(n) * 4 % 13; kind < faults.size())
                people[phone(n)] = faults[kind];
        }
        messages(people);
        config.maxFailures = 2;
        config.quietEnd = u"11:20"_s;
        QObject::connect(runner.get(), &Runner::stateChanged, runner.get(), [this] {
            if (runner->state == State::paused) {
                reasons += runner->message.value() + u"\n"_s;
                clock().after(90, [this] { runner->resume(); });
            }
        });
    }

    QByteArray run() {
        runAll(crowd);
        EXPECT_EQ(file(), displayed());
        return file() + reasons.toUtf8() + runner->message.value().toUtf8();
    }

    QString reasons;
};

// Catches whatever makes two equal runs differ, a run that does not end, and one that has become
// slow. What counts is the processor's time: the disk's depends on the machine.
TEST(RunSimulation, ARunOf60WithEveryFaultIsTheSameTwice) {
    const std::clock_t before = std::clock();
    Simulation first;
    const QByteArray result = first.run();
    EXPECT_LT(std::clock() - before, 5 * CLOCKS_PER_SEC);
    EXPECT_EQ(first.runner->done, crowd);
    for (const QString& reason : {u"Outside your sending hours"_s, u"got it from (555) 010-0002"_s,
                                  u"2 sends in a row failed"_s})
        EXPECT_TRUE(first.reasons.contains(reason)) << qPrintable(reason);
    EXPECT_EQ(Simulation().run(), result);
}

}  // namespace
}  // namespace velmora
