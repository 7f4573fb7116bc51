#include "sending/sending_world.h"

using namespace velmora;

const QString noRecord = u"No record in Messages yet. Check the thread on your phone."_s;
const QString notConfirmed = u"Messages hasn't confirmed it yet. Check the thread."_s;
const QString otherLine = u"+15550100002"_s;

struct VerificationTest : ::testing::Test, SendingWorld {
    VerificationTest() { config.maxFailures = 100; }
};

// Catches a fallback that is missing, made after a failed script, or counted as a failure of its
// own, a detail that cuts a character in two, and a wait that lasts its whole time although the
// history has answered.
TEST_F(VerificationTest, SendsAgainBySmsOnlyWhenIMessageFailed) {
    config.delayMin = config.delayMax = 30;
    const QString family = u"\U0001F468\u200D\U0001F469\u200D\U0001F467"_s;
    messages({{0, R"({"iMessage": {"error": 22}})"},
              {1, R"({"error": 22, "SMS": {"error": 3}})"},
              {2, R"({"scriptError": ")" + family.repeated(201).toUtf8() + R"("})"},
              {3, R"({"sentAfter": 3, "deliveredAfter": null})"}});
    start(4);
    expectDone(u"Finished. 4 of 4 processed. 2 failed."_s);
    EXPECT_EQ(outcomes(),
              (QStringList{u"sent|SMS (fallback)|me|"_s, u"failed|SMS|me|Messages error 3"_s,
                           u"failed|iMessage||"_s + family.repeated(200), u"sent|iMessage|me|"_s}));
    EXPECT_EQ(runner->log()[3].time, runner->log()[2].time + 34);
    EXPECT_EQ(scripts.count, 6);
}

// Catches a late confirmation that moves its line, changes its time or never reaches the file, and
// one that is looked for at other times than every 5 seconds of a wait between two sends.
TEST_F(VerificationTest, ALateConfirmationReplacesTheLineInPlace) {
    config.delayMin = config.delayMax = 30;
    messages({{0, R"({"sentAfter": 21, "deliveredAfter": null})"},
              {1, R"({"sentAfter": 26, "deliveredAfter": null})"}});
    std::vector<std::pair<qsizetype, double>> changes;
    QObject::connect(runner.get(), &Runner::logEntryChanged, [this, &changes](qsizetype index) {
        changes.emplace_back(index, clock().uptime());
    });
    start(3);
    clock().advance(23);
    EXPECT_EQ(outcomes(), QStringList{u"sent_unverified|iMessage|me|"_s + notConfirmed});
    const LogEntry first = runner->log()[0];
    expectDone(u"Finished. 3 of 3 processed."_s);
    EXPECT_EQ(outcomes(), QStringList(3, u"sent|iMessage|me|"_s));
    EXPECT_EQ(runner->log()[0].time, first.time);
    EXPECT_NE(runner->log()[0].id, first.id);
    // The waits began at 20 and at 70 seconds.
    EXPECT_EQ(changes, (std::vector<std::pair<qsizetype, double>>{{0, 25}, {1, 80}}));
    EXPECT_EQ(file(), displayed());
}

// Catches a pending send without its fallback, one whose fallback's own pending send is lost or
// tried by SMS again, and a failure found while waiting that pauses nothing.
TEST_F(VerificationTest, APendingSendFallsBackOnceAndItsFailureCounts) {
    config.maxFailures = 1;
    messages({{0, R"({"iMessage": {"recordAfter": 21, "error": 22}})"},
              {1, R"({"recordAfter": 21, "error": 22})"}});
    start(3);
    clock().advance(23);
    EXPECT_EQ(outcomes(), QStringList{u"sent_unverified|iMessage||"_s + noRecord});
    const Moment first = runner->log()[0].time;
    expectPaused(u"1 sends in a row failed. Check Messages and your iPhone, then resume."_s);
    EXPECT_EQ(outcomes(),
              (QStringList{u"sent|SMS (fallback)|me|"_s, u"failed|SMS|me|Messages error 22"_s}));
    EXPECT_GT(runner->log()[0].time, first);
    runner->resume();
    expectDone(u"Finished. 3 of 3 processed. 1 failed."_s);
    EXPECT_EQ(scripts.count, 5);
    EXPECT_EQ(file(), displayed());
}

// Catches a wrong number that goes unnoticed, and an address taken for one.
TEST_F(VerificationTest, PausesWhenATextLeftOnAnotherNumber) {
    messages({{0, R"({"line": "me@example.com"})"},
              {1, R"({"line": "+15550100002"})"},
              {3, R"({"line": "+15550100002", "error": 5})"}});
    const QString reason =
        u" got it from (555) 010-0002, not (555) 010-0001. Fix the line on your iPhone, then resume."_s;
    start(5);
    expectPaused(u"Person 1"_s + reason);
    EXPECT_EQ(runner->done.value(), 2);
    runner->resume();
    expectPaused(u"Person 3"_s + reason);
    runner->stop();
    expectDone(u"Stopped after 4 of 5. 1 failed."_s);
    config.senderNumber.clear();
    start(5, u"Another"_s);
    expectDone(u"Finished. 5 of 5 processed. 1 failed."_s);
}

// Catches a count of failures that an unverified send or its late confirmation resets or adds to,
// that a sent one leaves standing, and that goes on after the pause.
TEST_F(VerificationTest, PausesAfterFailuresInARow) {
    config.maxFailures = 3;
    std::map<int, QByteArray> people = {{4, R"({"sentAfter": 21, "deliveredAfter": null})"}};
    for (const int n : {0, 2, 3, 5, 6, 7})
        people[n] = R"({"scriptError": "No."})";
    messages(people);
    start(9);
    expectPaused(u"3 sends in a row failed. Check Messages and your iPhone, then resume."_s);
    EXPECT_EQ(runner->done.value(), 6);
    EXPECT_EQ(outcomes().value(4), u"sent|iMessage|me|"_s);
    runner->resume();
    expectDone(u"Finished. 9 of 9 processed. 6 failed."_s);
}

// Catches a run that an unreadable history stops or keeps from ending, however it became so: no
// file, one cut short, one without the tables, one that is locked.
TEST_F(VerificationTest, ARunWithoutTheHistoryEndsUnverified) {
    const QString path = home.path() + u"/broken.db"_s;
    std::unique_ptr<sqlite3, int (*)(sqlite3*)> other(nullptr, nullptr);
    runner = makeRunner(path);
    QObject::connect(runner.get(), &Runner::doneChanged, [&] {
        if (runner->done.value() == 1)
            writeTestFile(path, "SQLite format 3");
        if (runner->done.value() == 2) {
            writeTestFile(path, "");
            changeHistory(path, "CREATE TABLE message (a)");
        }
        if (runner->done.value() == 3)
            other = changeHistory(path, "BEGIN EXCLUSIVE");
    });
    start(4);
    expectDone(u"Finished. 4 of 4 processed."_s);
    EXPECT_EQ(outcomes(), QStringList(4, u"sent_unverified|iMessage||"_s + noRecord));
    EXPECT_NEAR(clock().now().seconds - runner->log()[3].time.seconds, 120, 0.01);
    start(4);
    expectDone(u"Finished. 0 of 0 processed."_s);
}

// Catches a text that leaves though its line is not on the disk, a run that ends because outcomes
// wait to be written, as on a disk that is nearly full, and outcomes that wait beyond its end.
TEST_F(VerificationTest, ATextLeavesWhenItsPersonStandsInTheFile) {
    messages({{1, R"({"iMessage": {"error": 22}})"}});
    const QString path = sendLog.logFile(batch);
    for (const QString& obstacle : {path, path + u".new"_s}) {
        ASSERT_TRUE(QDir().mkpath(obstacle));
        const QObject heard;
        QObject::connect(runner.get(), &Runner::doneChanged, &heard, [&, obstacle = obstacle] {
            if (runner->done.value() < 3)
                return;
            EXPECT_EQ(file().count("sent_unverified"), scripts.count == 0 ? 0 : 3);
            EXPECT_TRUE(QDir().rmdir(obstacle));
        });
        start(3);
        settle();
        EXPECT_EQ(scripts.count, obstacle == path ? 0 : 4);
        EXPECT_EQ(file(), displayed());
    }
    EXPECT_EQ(file().count(",sent,"), 3);
}

// Catches a stored line that is never settled, settled by an old text, or rewritten for nothing.
TEST_F(VerificationTest, ALoadedLogIsSettledByTheHistory) {
    store(0, statusUnverified);
    store(1, statusFailed);
    store(2, statusUnverified);
    store(3, statusFailed);
    store(4, statusSent);
    const auto record = [this](int n, double secondsAgo, bool delivered, const QString& service) {
        home.record({.handle = phone(n),
                     .service = service,
                     .line = otherLine,
                     .date = historyTimestamp(clock().now() + -secondsAgo),
                     .delivered = delivered});
    };
    const QByteArray before = file();
    runner->batch = batch;
    record(2, 121, true, {});
    record(3, 10, false, {});
    runner->reloadLog();
    EXPECT_EQ(file(), before);
    record(0, 119, true, {});
    record(1, 10, true, u"SMS"_s);
    record(4, 10, true, {});
    runner->reloadLog();
    const QString settled = u"|"_s + otherLine + u"|"_s;
    EXPECT_EQ(outcomes(), (QStringList{u"sent|kept"_s + settled, u"sent|SMS"_s + settled,
                                       u"sent_unverified|kept||detail"_s, u"failed|kept||detail"_s,
                                       u"sent|kept||detail"_s}));
    EXPECT_EQ(runner->log()[0].time, clock().now());
    EXPECT_EQ(file(), displayed());
}
