#include <limits>

#include "sending/message_sender.h"
#include "sending/pacing.h"
#include "sending/sending_world.h"

using namespace velmora;

struct RunnerTest : ::testing::Test, SendingWorld {};

// Catches a wait or a countdown that follows the wall clock, and a countdown that is cut instead of
// rounded up.
TEST_F(RunnerTest, CountsDownBetweenTwoSends) {
    start(2);
    clock().advance(2.0);
    const auto first = runner->nextIn.value();
    ASSERT_TRUE(first);
    EXPECT_TRUE(*first > 30 && *first <= 60 && !runner->current.value());
    clock().shiftWall(-3600);
    clock().advance(1.0);
    EXPECT_EQ(runner->nextIn.value(), *first - 1);
    clock().advance(120);
    EXPECT_FALSE(runner->isActive());
}

// Catches a stop that is lost, late, or cuts a send in progress short: before the first step, in a
// send, in a wait, in the final check.
TEST_F(RunnerTest, StopsInEveryState) {
    messages({{2, R"({"recordAfter": null})"}});
    for (const auto& [moment, longest, summary] : {std::tuple(0.0, 0.0, u"Stopped after 0 of 3."_s),
                                                   {1.0, 2.0, u"Stopped after 1 of 3."_s},
                                                   {5.0, 0.5, u"Stopped after 1 of 2."_s},
                                                   {30.0, 5.0, u"Stopped after 1 of 1."_s}}) {
        start(3);
        if (moment > 0)
            clock().advance(moment);
        EXPECT_EQ(runner->current.value().has_value(), moment == 1);
        EXPECT_EQ(runner->nextIn.value().has_value(), moment == 5);
        EXPECT_EQ(runner->message.value(), moment == 30 ? u"Checking the last sends."_s : u""_s);
        runner->stop();
        runner->resume();
        clock().advance(longest);
        EXPECT_FALSE(runner->isActive()) << moment;
        expectDone(summary);
    }
    EXPECT_EQ(outcomes().first(2), QStringList(2, u"sent|iMessage|me|"_s));
}

// Catches a text that leaves although the user stopped right after the resume.
TEST_F(RunnerTest, AStopAfterAResumeCounts) {
    clock().advance(10.25 * 3600);
    start(2);
    expectPaused(
        u"Outside your sending hours (10:00 to 20:00). Resume to send anyway, or stop and run later."_s);
    runner->resume();
    EXPECT_EQ(runner->state.value(), State::running);
    EXPECT_EQ(runner->message.value(), QString());
    runner->stop();
    expectDone(u"Stopped after 0 of 2."_s);
}

// Catches a suspended task that goes on without its runner: sends, or touches freed memory. Before
// the first step, in the wait for the history, in the wait between two sends, in the fallback of a
// pending send, in a pause, and between a resume and its task.
TEST(Runner, NothingGoesOnWithoutIt) {
    for (const double moment : {-1, 1, 9, 13, 200, 301}) {
        SendingWorld world;
        world.config.verifyWait = 6;
        world.config.quietEnd = u"11:01"_s;
        world.messages({{0, R"({"iMessage": {"recordAfter": 10, "error": 22}})"}});
        world.start(3);
        world.clock().advance(moment);
        if (moment > 300)
            world.runner->resume();
        const int before = world.scripts.count;
        world.runner.reset();
        EXPECT_EQ(world.activities.held, 0);
        EXPECT_EQ(world.file().contains("+15550200000"), before > 0) << "could be texted again";
        world.settle();
        EXPECT_EQ(world.scripts.count, before) << moment;
    }
}

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

// Catches an end that is never drawn, settings that must stand in order, a remainder taken of words
// that favour the short waits, and a wait or a countdown that a run never gets out of.
TEST(Pacing, DrawsBothEndsEvenlyAndStaysWithinADay) {
    constexpr quint64 steps = quint64{1} << 53;
    constexpr quint64 uneven = std::numeric_limits<quint64>::max();
    EXPECT_EQ(waitBetween(60, 30, ChosenWords({0})), 30);
    EXPECT_EQ(waitBetween(60, 30, ChosenWords({steps})), 60);
    EXPECT_EQ(waitBetween(60, 30, ChosenWords({uneven, steps / 2})), 45);
    using Real = std::numeric_limits<double>;
    for (const double delayMin : {1e308, -1e308, Real::infinity(), Real::quiet_NaN()})
        for (const double delayMax : {-Real::infinity(), Real::quiet_NaN(), 1e308})
            EXPECT_LE(std::abs(waitBetween(delayMin, delayMax)), 86400) << delayMin << delayMax;
    EXPECT_EQ(wholeSecondsUp(4.2), 5);
    EXPECT_EQ(wholeSecondsUp(1e300), std::numeric_limits<qint64>::max());
    EXPECT_EQ(wholeSecondsUp(Real::quiet_NaN()), 0);
}

// Catches a changed word, indent or line end, and escapes made in the wrong order.
TEST(MessageSender, WritesTheScriptThatMessagesKnows) {
    EXPECT_EQ(messageScript(u"+15550100123"_s, Service::sms, u"He said \\\"hi\\\"\nBye"_s),
              u"tell application \"Messages\"\n"
              u"    set targetAccount to 1st account whose service type = SMS\n"
              u"    set targetParticipant to participant \"+15550100123\" of targetAccount\n"
              u"    send \"He said \\\\\\\"hi\\\\\\\"\nBye\" to targetParticipant\n"
              u"end tell"_s);
}

// Catches an error taken for a success, or told in other words than the platform's.
TEST(MessageSender, TellsWhyATextCouldNotBeHandedOver) {
    struct AnsweringScripts final : ScriptRunner {
        [[nodiscard]] ScriptResult run(const QString&) override { return answer; }
        ScriptResult answer;
    } scripts;
    MessageSender sender(scripts);
    using Outcome = ScriptResult::Outcome;
    const std::vector<std::pair<ScriptResult, QString>> answers = {
        {{Outcome::success, {}}, u"sent"_s},
        {{Outcome::notPrepared, {}}, u"Couldn't prepare the Messages script."_s},
        {scriptFailure(7), u"Messages reported an error."_s},
        {scriptFailure(u"Can't get participant."_s), u"Can't get participant."_s}};
    for (const auto& [answer, description] : answers) {
        scripts.answer = answer;
        const auto sent = sender.send(u"+15550100123"_s, Service::iMessage, u"Hello"_s);
        EXPECT_EQ(sent ? u"sent"_s : sent.error().description, description);
    }
}
