#include <gtest/gtest.h>
#include <sys/stat.h>

#include <limits>

#include "history/account_preferences.h"
#include "history/messages_db.h"
#include "history/sent_record_wait.h"
#include "storage/files.h"
#include "support/rehearsal_home.h"
#include "support/virtual_surroundings.h"

using namespace Qt::StringLiterals;

namespace velmora {
namespace {

using Range = std::numeric_limits<qint64>;

const QString annsPhone = u"+15551234567"_s;

/// A history file of its own for each test. Whoever writes to it closes it again, so that its bytes
/// are all in the one file.
class MessagesDBTest : public ::testing::Test {
  protected:
    qint64 record(const HistoryMessage& message, ChatStyle style = ChatStyle::oneToOne) {
        return HistoryWriter::open(path).value().add(message, style).value();
    }
    auto change(const char* sql) { return changeHistory(path, sql); }
    [[nodiscard]] MessagesDB open() const { return MessagesDB::open(path).value(); }
    [[nodiscard]] QString whyNotOpened() const {
        const auto history = MessagesDB::open(path);
        return history ? u"opened"_s : history.error().description();
    }
    /// The line of Ann's thread.
    [[nodiscard]] std::optional<QString> threadLine(const QStringList& otherHandles = {}) const {
        const auto thread = open().thread(annsPhone, otherHandles).value();
        return thread.transform([](const ThreadInfo& found) { return found.line; });
    }

    const QTemporaryDir folder;
    const QString path = folder.filePath(u"chat.db"_s);
};

TEST(HistoryTimestamp, IsCutTowardZeroAndStaysInRange) {
    EXPECT_EQ(historyTimestamp({763657200.5}), 763657200'500'000'000);
    EXPECT_EQ(historyTimestamp({1.5e-9}), 1);
    EXPECT_EQ(historyTimestamp({-1.5e-9}), -1);
    EXPECT_EQ(historyTimestamp({1e300}), Range::max());
    EXPECT_EQ(historyTimestamp({-1e300}), Range::min());
    EXPECT_EQ(historyTimestamp({std::numeric_limits<double>::quiet_NaN()}), Range::max());
}

TEST(HandleVariants, KeepTheirOrderAndDuplicates) {
    EXPECT_EQ(handleVariants(annsPhone).join(u' '), u"+15551234567 15551234567 5551234567");
    EXPECT_EQ(handleVariants(u"+447700900123"_s).join(u' '), u"+447700900123 447700900123");
    EXPECT_EQ(handleVariants(u"++1555"_s).join(u' '), u"++1555 1555");
    EXPECT_EQ(handleVariants(u"1555"_s).join(u' '), u"1555 1555");
}

TEST_F(MessagesDBTest, SaysInASentenceWhyItCannotBeRead) {
    EXPECT_EQ(whyNotOpened(), u"Couldn't open Messages history: unable to open database file");
    EXPECT_FALSE(QFile::exists(path)) << "opening made a file";
    ASSERT_EQ(::mkfifo(QFile::encodeName(path).constData(), 0600), 0);
    EXPECT_EQ(whyNotOpened(), u"Couldn't open Messages history: it is no ordinary file");
    ASSERT_TRUE(QFile::remove(path));
    writeTestFile(path, "no database, but long enough to be looked at as if it were one");
    EXPECT_EQ(whyNotOpened(), u"Couldn't read Messages history: file is not a database");
    writeTestFile(path, "");
    EXPECT_EQ(whyNotOpened(), u"Couldn't read Messages history: no such table: message");
    change("CREATE TABLE message (a)");
    EXPECT_EQ(whyNotOpened(), u"opened") << "no row is no failure";
    const auto writer = change("BEGIN EXCLUSIVE");
    EXPECT_EQ(whyNotOpened(), u"Couldn't read Messages history: database is locked");
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
    for (int number = 3; number <= 9; ++number)
        for (int message = 0; message < number; ++message)
            add(u"+%1"_s.arg(number), oldest, true);
    const std::vector<NumberInfo> busiest{{u"+9"_s, 9}, {u"+8"_s, 8}, {u"+7"_s, 7},
                                          {u"+6"_s, 6}, {u"+5"_s, 5}, {u"+4"_s, 4}};
    EXPECT_EQ(open().senderNumbers(now).value(), busiest);
}

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
    change("DROP TABLE handle");
    EXPECT_EQ(open().thread(annsPhone, {}).error().description(),
              u"Couldn't read Messages history: no such table: handle");
}

TEST_F(MessagesDBTest, LastSentIsTheNewestFromMeSinceThen) {
    record({.handle = u"15551234567"_s, .date = 5, .error = 22});
    EXPECT_EQ(open().lastSent(annsPhone, 5).value().value_or(SentRecord()).error, 22);
    record({.handle = annsPhone, .service = u"SMS"_s, .line = u"+1"_s, .date = 7, .sent = true});
    record({.handle = annsPhone, .date = 9, .fromMe = false});
    record({.handle = u"+15550000000"_s, .date = 9});
    EXPECT_FALSE(open().lastSent(annsPhone, 8).value().has_value());
    const SentRecord newest = open().lastSent(annsPhone, 7).value().value_or(SentRecord());
    EXPECT_EQ(newest.service + newest.line, u"SMS+1");
    EXPECT_TRUE(newest.sent && !newest.delivered && newest.error == 0);
    change(R"(UPDATE message SET service = x'41', destination_caller_id = 1.5, error = 'x',
              is_sent = 0.5, is_delivered = -2)");
    const SentRecord odd = open().lastSent(annsPhone, 7).value().value_or(SentRecord());
    EXPECT_TRUE(odd.service.isEmpty() && odd.error == 0 && !odd.sent && odd.delivered);
    change("DROP TABLE handle");
    EXPECT_FALSE(open().lastSent(annsPhone, 7).has_value());
}

class SentRecordWait : public MessagesDBTest {
  protected:
    /// Waits for Ann's record since 10 and expects the answer after so many seconds.
    std::optional<SentRecord> wait(double timeout, double expectedSeconds) {
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
        return answer;
    }
    void settleAfter(double seconds, bool sent, bool delivered) {
        world.clock.after(seconds, [=, this, row = record(pending)] {
            EXPECT_TRUE(HistoryWriter::open(path)->setFlags(row, sent, delivered).has_value());
        });
    }

    const HistoryMessage pending{.handle = annsPhone, .date = 10};
    VirtualSurroundings world;
};

TEST_F(SentRecordWait, EndsAtTheFirstReadingThatSettlesItOrAfterTheTimeout) {
    constexpr double endless = std::numeric_limits<double>::infinity();
    for (const double none : {0.0, -1.0, std::numeric_limits<double>::quiet_NaN()})
        EXPECT_FALSE(wait(none, 0).has_value());
    EXPECT_FALSE(wait(5, 6).has_value()) << "no history at all";
    settleAfter(3, true, false);
    EXPECT_TRUE(wait(20, 4).value_or(SentRecord()).sent);
    settleAfter(1, false, true);
    EXPECT_TRUE(wait(endless, 2).value_or(SentRecord()).delivered);
    record(pending);
    EXPECT_FALSE(wait(5, 6).value_or(SentRecord{{}, {}, 1}).isConclusive());
    EXPECT_TRUE(wait(1e308, 3600).has_value()) << "a run that can never be stopped";
    world.clock.after(1, [this] { world.clock.shiftWall(3600); });
    EXPECT_TRUE(wait(4, 4).has_value()) << "setting the wall clock changes how long it waits";
    record({.handle = annsPhone, .date = 11, .error = 5});
    EXPECT_EQ(wait(1e300, 0).value_or(SentRecord()).error, 5);
}

TEST_F(SentRecordWait, ReadsTheFileThatIsThereAtEachReading) {
    for (const char* rest : {"", "no database, as a crash may leave it"}) {
        QFile::remove(path);
        record(pending);
        world.clock.after(3, [this, rest] { writeTestFile(path, rest); });
        EXPECT_FALSE(wait(5, 6).has_value()) << rest;
    }
    world.clock.after(1, [this] { QFile::remove(path); });
    world.clock.after(3, [this] { record({.handle = annsPhone, .date = 12, .delivered = true}); });
    EXPECT_TRUE(wait(20, 4).value_or(SentRecord()).delivered);
}

struct StoredAliases final : AccountPreferences {
    explicit StoredAliases(QVariant value) : value(std::move(value)) {}
    [[nodiscard]] QVariant aliases() const override { return value; }

    QVariant value;
};

QStringList aliasesOf(const QVariant& selected, const QVariant& all) {
    return phoneAliases(
        StoredAliases(QVariantMap{{u"selectedAliases"_s, selected}, {u"allAliases"_s, all}}));
}

TEST(PhoneAliases, AreTheSelectedNumbersElseAllAndNoneWithoutAList) {
    const QStringList all{u"ann@example.com"_s, u"+1"_s, u"+2"_s};
    const QStringList selected{u"+2"_s};
    EXPECT_EQ(aliasesOf(QStringList{u"+2"_s, u"a@b.c"_s, u"+1"_s}, all),
              (QStringList{u"+2"_s, u"+1"_s}));
    EXPECT_EQ(aliasesOf(QVariantList{u"+2"_s}, QVariantList{u"+1"_s}), selected);
    // No number, another type, not only texts.
    for (const QVariant& useless :
         {QVariant(QStringList{all[0]}), QVariant(u"+2"_s), QVariant(QVariantList{u"+2"_s, 7})})
        EXPECT_EQ(aliasesOf(useless, all), all.sliced(1));
    EXPECT_EQ(aliasesOf({}, QStringList{all[0]}), QStringList());
    for (const QVariant& noList : {QVariant(), QVariant(QVariantList{u"+1"_s, 7})})
        EXPECT_EQ(aliasesOf(selected, noList), QStringList());
    for (const QVariant& value : {QVariant(), QVariant(u"+1"_s), QVariant(QVariantMap())})
        EXPECT_EQ(phoneAliases(StoredAliases(value)), QStringList());
}

}  // namespace
}  // namespace velmora
