#include <array>
#include <ctime>

#include "sending/sending_world.h"

namespace velmora {
namespace {

using State = Runner::State;

constexpr int crowd = 60;

/// A long run in a world of faults, whose user resumes every pause after a while.
class Simulation : public SendingWorld {
  public:
    Simulation() {
        const std::array<QByteArray, 9> faults = {
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
                people[phone(n)] = faults.at(kind);
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
    const double seconds = static_cast<double>(std::clock() - before) / CLOCKS_PER_SEC;
    RecordProperty("processorMilliseconds", static_cast<int>(seconds * 1000));
    EXPECT_LT(seconds, 5);
    EXPECT_EQ(first.runner->done, crowd);
    EXPECT_TRUE(first.reasons.contains(u"Outside your sending hours"));
    EXPECT_TRUE(first.reasons.contains(u"got it from (555) 010-0002"));
    EXPECT_TRUE(first.reasons.contains(u"2 sends in a row failed"));
    EXPECT_EQ(Simulation().run(), result);
}

}  // namespace
}  // namespace velmora
