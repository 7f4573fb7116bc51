#include "history/sent_record_wait.h"

#include <gtest/gtest.h>

#include <limits>

#include "history/history_file.h"
#include "support/virtual_surroundings.h"

namespace velmora {
namespace {

class NoBackground final : public Background {
  public:
    void run(std::function<void()>, std::function<void()>) override { ADD_FAILURE() << "it read"; }
};

class SentRecordWait : public HistoryFile {
  protected:
    /// Waits for Ann's record since 10 and expects the answer after so many seconds.
    std::optional<SentRecord> wait(double timeout, double expectedSeconds) {
        return wait(world.handed(), timeout, expectedSeconds);
    }
    std::optional<SentRecord> wait(Surroundings surroundings, double timeout,
                                   double expectedSeconds) {
        const double start = world.clock.uptime();
        double end = -1;
        std::optional<SentRecord> answer;
        waitForSentRecord(surroundings, path(), annsPhone, 10, timeout)
            .then([&](std::optional<SentRecord> record) {
                answer = std::move(record);
                end = world.clock.uptime();
            });
        EXPECT_TRUE(world.clock.runUntilIdle());
        EXPECT_EQ(end - start, expectedSeconds);
        return answer;
    }
    void settleAfter(double seconds, bool sent, bool delivered) {
        world.clock.after(seconds, [=, this, row = record(pending)] {
            EXPECT_TRUE(HistoryWriter::open(path())->setFlags(row, sent, delivered).has_value());
        });
    }

    const HistoryMessage pending{.handle = annsPhone, .date = 10};
    VirtualSurroundings world;
};

TEST_F(SentRecordWait, EndsAtTheFirstReadingThatSettlesIt) {
    settleAfter(3, true, false);
    EXPECT_TRUE(wait(20, 4).value_or(SentRecord()).sent);
    settleAfter(1, false, true);
    EXPECT_TRUE(wait(std::numeric_limits<double>::infinity(), 2).value_or(SentRecord()).delivered);
    record({.handle = annsPhone, .date = 11, .error = 5});
    EXPECT_EQ(wait(1e300, 0).value_or(SentRecord()).error, 5);
}

TEST_F(SentRecordWait, GivesTheUnsettledRecordAfterTheTimeout) {
    EXPECT_FALSE(wait(5, 6).has_value()) << "no history at all";
    record(pending);
    EXPECT_FALSE(wait(5, 6).value_or(SentRecord{{}, {}, 1}).isConclusive());
    world.clock.after(1, [this] { world.clock.shiftWall(3600); });
    EXPECT_TRUE(wait(4, 4).has_value())
        << "setting the wall clock neither shortens nor prolongs it";
}

TEST_F(SentRecordWait, ForgetsWhatItSawWhenTheLastReadingFails) {
    for (const char* rest :
         {"", "truncated to a text that is no database, as a crash may leave it"}) {
        QFile::remove(path());
        record(pending);
        world.clock.after(3, [this, rest] { writeTestFile(path(), rest); });
        EXPECT_FALSE(wait(5, 6).has_value()) << rest;
    }
}

TEST_F(SentRecordWait, ReadsTheFileThatIsThereAtEachReading) {
    record(pending);
    world.clock.after(1, [this] { QFile::remove(path()); });
    world.clock.after(3, [this] { record({.handle = annsPhone, .date = 12, .delivered = true}); });
    EXPECT_TRUE(wait(20, 4).value_or(SentRecord()).delivered);
}

TEST_F(SentRecordWait, ReadsNothingWithoutTime) {
    NoBackground background;
    const Surroundings surroundings{world.clock, world.random, background};
    for (const double timeout : {0.0, -1.0, std::numeric_limits<double>::quiet_NaN()})
        EXPECT_FALSE(wait(surroundings, timeout, 0).has_value());
}

}  // namespace
}  // namespace velmora
