#include <limits>

#include "sending/pacing.h"
#include "sending/sending_world.h"

namespace velmora {
namespace {

using Real = std::numeric_limits<double>;

class RunnerTest : public ::testing::Test, protected SendingWorld {};

// Catches a question for every person, and a run that a second start disturbs.
TEST_F(RunnerTest, AsksOnceOutsideTheSendingHours) {
    clock().advance(10.25 * 3600);
    const QString question =
        u"Outside your sending hours (10:00 to 20:00). Resume to send anyway, or stop and run later."_s;
    start(3);
    expectPaused(question);
    EXPECT_EQ(activities.held, 1);
    start(1);
    EXPECT_EQ(runner->total.value(), 3);
    runner->resume();
    expectDone(u"Finished. 3 of 3 processed."_s);

    runner->start(u"Another"_s, people(2), config);
    expectPaused(question);
    runner->stop();
    EXPECT_EQ(runner->state.value(), State::stopping);
    expectDone(u"Stopped after 0 of 2."_s);
}

// Catches a wait out of range or one that follows the wall clock, a countdown that is cut instead
// of rounded up, and one that is left standing or shown where nothing waits.
TEST_F(RunnerTest, CountsDownBetweenTwoSends) {
    config.delayMin = 60;
    config.delayMax = 30;
    int countdowns = 0;
    QObject::connect(runner.get(), &Runner::nextInChanged, [&countdowns] { ++countdowns; });
    runAll(1);
    EXPECT_EQ(countdowns, 0);

    runner->start(u"Another"_s, people(2), config);
    clock().advance(2.0);
    const auto first = runner->nextIn.value();
    ASSERT_TRUE(first);
    EXPECT_TRUE(*first > 30 && *first <= 60);
    EXPECT_FALSE(runner->current.value());
    clock().advance(1.0);
    EXPECT_EQ(runner->nextIn.value(), *first - 1);
    clock().shiftWall(-3600);
    clock().advance(120);
    EXPECT_FALSE(runner->isActive());
    expectDone(u"Finished. 2 of 2 processed."_s);
    const auto& log = runner->log();
    const double apart = log[1].time.seconds - log[0].time.seconds + 3600;
    EXPECT_TRUE(apart >= 30 && apart <= 63) << apart;
}

// Catches a stop that is lost, late, or cuts a send in progress short.
TEST_F(RunnerTest, StopsInEveryState) {
    runner->stop();
    runner->resume();
    EXPECT_EQ(runner->state.value(), State::idle);

    start(3);
    runner->stop();
    expectDone(u"Stopped after 0 of 3."_s);

    start(3);
    clock().advance(1);
    EXPECT_EQ(runner->current.value(), u"Person 0"_s);
    runner->stop();
    runner->resume();
    expectDone(u"Stopped after 1 of 3."_s);
    EXPECT_EQ(outcome(0), u"sent|iMessage|"_s + line + u"|"_s);

    start(3);
    clock().advance(5);
    ASSERT_TRUE(runner->nextIn.value());
    const double asked = clock().uptime();
    runner->stop();
    settle();
    EXPECT_LE(clock().uptime() - asked, 0.5);
    expectDone(u"Stopped after 1 of 2."_s);
    runner->stop();
    EXPECT_EQ(runner->state.value(), State::done);

    messages({{phone(2), R"({"recordAfter": null})"}});
    start(3);
    clock().advance(30);
    EXPECT_EQ(runner->message.value(), u"Checking the last sends."_s);
    runner->stop();
    clock().advance(5);
    EXPECT_FALSE(runner->isActive());
    expectDone(u"Stopped after 1 of 1."_s);
}

// Catches a text that leaves although the user stopped right after the resume, and an answer that
// is lost because it comes while the pause or its reason is being announced.
TEST_F(RunnerTest, TakesAnAnswerAtAnyMoment) {
    clock().advance(10.25 * 3600);
    runAll(2);
    runner->resume();
    EXPECT_EQ(runner->state.value(), State::running);
    EXPECT_EQ(runner->message.value(), QString());
    runner->stop();
    expectDone(u"Stopped after 0 of 2."_s);
    EXPECT_EQ(scripts.count, 0);

    {
        QObject all;
        const auto stop = [this] { runner->stop(); };
        const auto expectUnpaused = [this] { EXPECT_NE(runner->state.value(), State::paused); };
        QObject::connect(runner.get(), &Runner::messageChanged, &all, stop);
        QObject::connect(runner.get(), &Runner::stateChanged, &all, expectUnpaused);
        start(2);
        expectDone(u"Stopped after 0 of 2."_s);
    }
    QObject::connect(runner.get(), &Runner::stateChanged, runner.get(),
                     [this] { runner->resume(); });
    start(2);
    expectDone(u"Finished. 2 of 2 processed."_s);
}

class RunnerEndTest : public RunnerTest, public ::testing::WithParamInterface<double> {};

// Catches a suspended task that goes on without its runner: sends, or touches freed memory.
TEST_P(RunnerEndTest, NothingGoesOnWithoutTheRunner) {
    config.verifyWait = 6;
    config.quietEnd = u"11:01"_s;
    messages({{phone(0), R"({"iMessage": {"recordAfter": 10, "error": 22}})"}});
    start(3);
    clock().advance(GetParam());
    if (runner->state == State::paused && GetParam() > 300)
        runner->resume();
    const int before = scripts.count;
    runner.reset();
    EXPECT_EQ(activities.held, 0);
    EXPECT_EQ(file().contains(phone(0).toUtf8()), before > 0) << "could be texted again";
    settle();
    EXPECT_EQ(scripts.count, before);
}

// Before the first step, in the wait for the history, in the wait between two sends, in the
// fallback of a pending send, in a pause, and between a resume and its task.
INSTANTIATE_TEST_SUITE_P(AtAnyMoment, RunnerEndTest, ::testing::Values(-1, 1, 9, 13, 200, 301));

struct ChosenWords final : RandomSource {
    explicit ChosenWords(std::vector<quint64> words) : words(std::move(words)) {}
    [[nodiscard]] quint64 word() override { return words.at(next++); }

    std::vector<quint64> words;
    size_t next = 0;
};

double waitBetween(double delayMin, double delayMax, RandomSource&& random = SeededRandomSource()) {
    AppConfig config;
    config.delayMin = delayMin;
    config.delayMax = delayMax;
    return randomWait(config, random);
}

// Catches an end that is never drawn, settings that must stand in order, and a remainder taken of
// words that favour the short waits.
TEST(Pacing, DrawsBothEndsAndDrawsAgainWhereWordsAreUneven) {
    constexpr quint64 steps = quint64{1} << 53;
    EXPECT_EQ(waitBetween(60, 30, ChosenWords({0})), 30);
    EXPECT_EQ(waitBetween(60, 30, ChosenWords({steps})), 60);
    EXPECT_EQ(waitBetween(60, 30, ChosenWords({steps / 2})), 45);
    EXPECT_EQ(waitBetween(60, 30, ChosenWords({std::numeric_limits<quint64>::max(), steps})), 60);
    EXPECT_EQ(waitBetween(12.5, 12.5), 12.5);
}

// Catches a wait or a countdown that a run never gets out of.
TEST(Pacing, StaysWithinADayForAnySettings) {
    const auto extremes = {1e308, -1e308, Real::infinity(), -Real::infinity(), Real::quiet_NaN(),
                           0.0,   -3.0};
    for (const double delayMin : extremes)
        for (const double delayMax : extremes)
            EXPECT_LE(std::abs(waitBetween(delayMin, delayMax)), 86400) << delayMin << delayMax;
    EXPECT_EQ(waitBetween(Real::quiet_NaN(), Real::quiet_NaN()), 0);
    EXPECT_EQ(waitBetween(Real::infinity(), 1e308), 86400);
    EXPECT_EQ(wholeSecondsUp(4.2), 5);
    EXPECT_EQ(wholeSecondsUp(4), 4);
    EXPECT_EQ(wholeSecondsUp(1e300), std::numeric_limits<qint64>::max());
    EXPECT_EQ(wholeSecondsUp(-1e300), std::numeric_limits<qint64>::min());
    EXPECT_EQ(wholeSecondsUp(Real::quiet_NaN()), 0);
}

}  // namespace
}  // namespace velmora
