#include <gtest/gtest.h>
#include <sys/stat.h>

#include <QJsonDocument>
#include <limits>

#include "history/account_preferences.h"
#include "history/messages_db.h"
#include "history/sent_record_wait.h"
#include "storage/files.h"
#include "support/rehearsal_home.h"
#include "support/virtual_surroundings.h"

using namespace velmora;

using Range = std::numeric_limits<qint64>;
using Real = std::numeric_limits<double>;

const QString annsPhone = u"+15551234567"_s;
const SentRecord noRecord{u"none"_s, {}};

/// A history file of its own for each test. Whoever writes to it closes it again, so that its bytes
/// are all in the one file.
struct MessagesDBTest : ::testing::Test {
    qint64 record(const HistoryMessage& message, ChatStyle style = ChatStyle::oneToOne) {
        return HistoryWriter::open(path).value().add(message, style).value();
    }
    [[nodiscard]] MessagesDB open() const { return MessagesDB::open(path).value(); }
    /// The line of Ann's thread.
    [[nodiscard]] std::optional<QString> threadLine(const QStringList& otherHandles = {}) const {
        const auto thread = open().thread(annsPhone, otherHandles).value();
        return thread.transform([](const ThreadInfo& found) { return found.line; });
    }
    /// What was last sent to Ann since then.
    [[nodiscard]] SentRecord lastSent(qint64 since) const {
        return open().lastSent(annsPhone, since)->value_or(noRecord);
    }

    const QTemporaryDir folder;
    const QString path = folder.filePath(u"chat.db"_s);
};

// A record is looked for from the wrong moment on, or beyond all.
TEST(HistoryTimestamp, IsCutTowardZeroAndStaysInRange) {
    EXPECT_EQ(historyTimestamp({763657200.5}), 763657200'500'000'000);
    EXPECT_EQ(historyTimestamp({1.5e-9}), 1);
    EXPECT_EQ(historyTimestamp({-1.5e-9}), -1);
    EXPECT_EQ(historyTimestamp({1e300}), Range::max());
    EXPECT_EQ(historyTimestamp({-1e300}), Range::min());
    EXPECT_EQ(historyTimestamp({Real::quiet_NaN()}), Range::max());
}

// A failure told in other words, or one where there is none.
TEST_F(MessagesDBTest, SaysInASentenceWhyItCannotBeRead) {
    const auto expectFailure = [this](const QString& sentence) {
        const auto history = MessagesDB::open(path);
        EXPECT_EQ(history ? u"opened"_s : history.error().description(), sentence);
    };
    expectFailure(u"Couldn't open Messages history: unable to open database file"_s);
    EXPECT_FALSE(QFile::exists(path)) << "opening made a file";
    ASSERT_EQ(::mkfifo(QFile::encodeName(path).constData(), 0600), 0);
    expectFailure(u"Couldn't open Messages history: it is no ordinary file"_s);
    ASSERT_TRUE(QFile::remove(path));
    writeTestFile(path, "no database, but long enough to be looked at as if it were one");
    expectFailure(u"Couldn't read Messages history: file is not a database"_s);
    writeTestFile(path, "");
    expectFailure(u"Couldn't read Messages history: no such table: message"_s);
    changeHistory(path, "CREATE TABLE message (a)");
    expectFailure(u"opened"_s);
    EXPECT_EQ(open().lastSent(annsPhone, 7).error().description(),
              u"Couldn't read Messages history: no such table: handle");
    EXPECT_FALSE(open().thread(annsPhone, {}).has_value());
    const auto writer = changeHistory(path, "BEGIN EXCLUSIVE");
    expectFailure(u"Couldn't read Messages history: database is locked"_s);
}

// A view without end would hold the window up for ever; more addresses than SQLite takes at once
// would hide a conversation.
TEST_F(MessagesDBTest, AnswersInTimeAndAboutAnyNumberOfAddresses) {
    record({.handle = annsPhone});
    auto history = open();
    const auto endless = history.query(
        u"WITH RECURSIVE n AS (SELECT 1 UNION ALL SELECT 1 FROM n) SELECT 1 FROM n, n, n WHERE 0"_s,
        {}, 0.05);
    EXPECT_EQ(endless.error().description(), u"Couldn't read Messages history: interrupted");
    EXPECT_EQ(history.lastSent(annsPhone, 0).error().message, u"interrupted"_s) << "and so on";
    QStringList addresses;
    for (int n = 0; n < 130'000; ++n)
        addresses.append(u"%1@example.com"_s.arg(n));
    record({.handle = addresses[700], .line = u"+old"_s, .date = 5});
    record({.handle = addresses[129'000], .line = u"+new"_s, .date = 7});
    record({.handle = addresses[2], .line = u"+older"_s, .date = 1});
    EXPECT_EQ(threadLine(addresses), u"+new");
}

// A value that is read as another, and a history that reading changes.
TEST_F(MessagesDBTest, ReadsEachColumnByItsStorageAndLeavesTheFileAsItWas) {
    record({.handle = annsPhone});
    const QByteArray before = readFile(path).value();
    const QString sql =
        u"SELECT ?, ?, NULL, 1.5, x'41', CAST(x'410042' AS TEXT), CAST(x'ff7a' AS TEXT)"
        " UNION ALL SELECT 1,2,3,4,5,6,7"_s;
    const auto rows = open().query(sql, {u"Zoë"_s, Range::min()}).value();
    ASSERT_EQ(rows.size(), 2);
    const MessagesDB::Row expected{u"Zoë"_s, Range::min(), {}, {}, {}, u"A\0B"_s, u"\uFFFDz"_s};
    EXPECT_EQ(rows.front(), expected);
    EXPECT_EQ(open().query(u"DELETE FROM message"_s, {}).error().description(),
              u"Couldn't read Messages history: attempt to write a readonly database");
    EXPECT_EQ(readFile(path), before);
}

// A number that is not the user's any more, or none at all, offered to send from.
TEST_F(MessagesDBTest, SenderNumbersAreTheSixBusiestUsedInNinetyDays) {
    const Moment now{763657200};
    const qint64 oldest = historyTimestamp(now) - 90 * 86400 * 1'000'000'000LL;
    const auto add = [this](const QString& line, qint64 date, bool fromMe) {
        record({.handle = annsPhone, .line = line, .date = date, .fromMe = fromMe});
    };
    add(u"+1"_s, oldest, true);
    add(u"+1"_s, 0, false);
    add(u"+2"_s, oldest - 1, true);
    add(u"+2"_s, historyTimestamp(now), false);
    add(u"me@example.com"_s, oldest, true);
    record({.handle = annsPhone, .date = oldest});
    EXPECT_EQ(open().senderNumbers(now).value(), (std::vector<NumberInfo>{{u"+1"_s, 2}}));
    EXPECT_EQ(open().senderNumbers({-1e300}).value().size(), 2) << "no bound lies before all time";
    std::vector<NumberInfo> busiest;
    for (int number = 9; number >= 3; --number) {
        busiest.push_back({u"+%1"_s.arg(number), number});
        for (int message = 0; message < number; ++message)
            add(busiest.back().number, oldest, true);
    }
    busiest.pop_back();
    EXPECT_EQ(open().senderNumbers(now).value(), busiest);
}

// A service or a line of another person, of a group, or of a text that failed.
TEST_F(MessagesDBTest, ThreadIsTheNewestGoodMessageOfAOneToOneChat) {
    record({.handle = annsPhone, .line = u"+group"_s, .date = 9}, ChatStyle::group);
    EXPECT_EQ(threadLine(), std::nullopt);
    record({.handle = u"5551234567"_s, .line = u"+sent"_s, .date = 1});
    EXPECT_EQ(threadLine(), u"+sent");
    record({.handle = annsPhone, .line = u"+received"_s, .date = 2, .fromMe = false});
    record({.handle = annsPhone, .line = u"+failed"_s, .date = 3, .error = 22});
    EXPECT_EQ(threadLine(), u"+received");
    record({.handle = u"ann@example.com"_s, .service = u"SMS"_s, .date = 4});
    record({.handle = u"Cy@example.com"_s, .line = u"+asTyped"_s, .date = 5});
    EXPECT_EQ(threadLine({u"Ann@Example.com"_s}), QString()) << "a NULL line, in lower case";
    const auto inCapitals = open().thread(annsPhone, {u"ANN@example.com"_s}).value();
    EXPECT_EQ(inCapitals.value_or(ThreadInfo()).service, u"SMS");
    EXPECT_EQ(threadLine({u"Ann@Example.com"_s, u"Cy@example.com"_s}), u"+asTyped");
}

// A text confirmed by an earlier one, by another person's or by one that came in.
TEST_F(MessagesDBTest, LastSentIsTheNewestFromMeSinceThen) {
    record({.handle = u"15551234567"_s, .date = 5, .error = 22});
    EXPECT_EQ(lastSent(5).error, 22);
    record({.handle = annsPhone, .service = u"SMS"_s, .line = u"+1"_s, .date = 7, .sent = true});
    record({.handle = annsPhone, .date = 9, .fromMe = false});
    record({.handle = u"+15550000000"_s, .date = 9});
    EXPECT_EQ(lastSent(8).service, u"none");
    const SentRecord newest = lastSent(7);
    EXPECT_EQ(newest.service + newest.line, u"SMS+1");
    EXPECT_TRUE(newest.sent && !newest.delivered && newest.error == 0);
    changeHistory(path, R"(UPDATE message SET service = x'41', destination_caller_id = 1.5,
                           error = 'x', is_sent = 0.5, is_delivered = -2)");
    const SentRecord odd = lastSent(7);
    EXPECT_TRUE(odd.service.isEmpty() && odd.error == 0 && !odd.sent && odd.delivered);
}

struct SentRecordWait : MessagesDBTest {
    /// Waits for Ann's record since 10 and expects the answer after so many seconds.
    SentRecord wait(double timeout, double expectedSeconds) {
        const double start = world.clock.uptime();
        double end = -1;
        std::optional<SentRecord> answer;
        waitForSentRecord(world.handed(), path, annsPhone, 10, timeout)
            .then([&](std::optional<SentRecord> record) {
                answer = std::move(record);
                end = world.clock.uptime();
            });
        EXPECT_TRUE(world.clock.runUntilIdle());
        EXPECT_EQ(end - start, expectedSeconds);
        return answer.value_or(noRecord);
    }

    const HistoryMessage pending{.handle = annsPhone, .date = 10};
    VirtualSurroundings world;
};

// An answer that comes late, too early or never, and one from a file that is gone.
TEST_F(SentRecordWait, EndsAtTheFirstReadingThatSettlesItOrAfterTheTimeout) {
    for (const double none : {0.0, -1.0, Real::quiet_NaN()})
        EXPECT_EQ(wait(none, 0).service, u"none");
    EXPECT_EQ(wait(5, 6).service, u"none") << "no history at all";
    const qint64 row = record(pending);
    EXPECT_FALSE(wait(5, 6).isConclusive());
    EXPECT_EQ(wait(1e308, 3600).service, u"iMessage") << "a run that can never be stopped";
    world.clock.after(1, [this] { world.clock.shiftWall(3600); });
    EXPECT_FALSE(wait(4, 4).isConclusive()) << "setting the wall clock changes how long it waits";
    world.clock.after(3,
                      [&] { EXPECT_TRUE(HistoryWriter::open(path)->setFlags(row, true, false)); });
    EXPECT_TRUE(wait(Real::infinity(), 4).sent);
    world.clock.after(0, [this] { writeTestFile(path, "no database, as a crash may leave it"); });
    EXPECT_EQ(wait(5, 6).service, u"none");
    world.clock.after(1, [this] { QFile::remove(path); });
    world.clock.after(3, [this] { record({.handle = annsPhone, .date = 12, .delivered = true}); });
    EXPECT_TRUE(wait(20, 4).delivered);
    record({.handle = annsPhone, .date = 13, .error = 5});
    EXPECT_EQ(wait(1e300, 0).error, 5);
}

// A number that is not the user's, or none although the account has some.
TEST(PhoneAliases, AreTheSelectedNumbersElseAllAndNoneWithoutAList) {
    struct StoredAliases final : AccountPreferences {
        [[nodiscard]] QVariant aliases() const override { return value; }
        QVariant value;
    } stored;
    const std::vector<std::pair<QByteArray, QString>> cases = {
        {R"({"selectedAliases": ["+2", "a@b.c", "+1"], "allAliases": ["+1"]})", u"+2 +1"_s},
        {R"({"selectedAliases": ["a@b.c"], "allAliases": ["a@b.c", "+1", "+2"]})", u"+1 +2"_s},
        {R"({"selectedAliases": "+2", "allAliases": ["+1"]})", u"+1"_s},
        {R"({"selectedAliases": ["+2", 7], "allAliases": ["+1"]})", u"+1"_s},
        {R"({"selectedAliases": ["+2"], "allAliases": ["+1", 7]})", {}},
        {R"({"selectedAliases": ["+2"]})", {}},
        {R"({"allAliases": ["a@b.c"]})", {}},
        {R"(["+1"])", {}}};
    for (const auto& [json, phones] : cases) {
        stored.value = QJsonDocument::fromJson(json).toVariant();
        EXPECT_EQ(phoneAliases(stored).join(u' '), phones) << json.constData();
    }
    stored.value = QVariantMap{{u"allAliases"_s, QStringList{u"+1"_s}}};
    EXPECT_EQ(phoneAliases(stored), QStringList{u"+1"_s});
}
