#include "platform/rehearsal/messages_application.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QFile>

#include "history/messages_db.h"
#include "platform/rehearsal/rehearsal_platform.h"
#include "sending/message_sender.h"
#include "support/rehearsal_home.h"
#include "support/virtual_surroundings.h"

using namespace Qt::StringLiterals;

namespace velmora {
namespace {

using Outcome = ScriptResult::Outcome;

const QString ann = u"+12125550123"_s;
const QString line = u"+12125550100"_s;
const QString otherLine = u"+12125550101"_s;

class MessagesApplicationTest : public testing::Test {
  protected:
    void send(Service service = Service::iMessage) {
        sentAt = world.clock.uptime();
        since = historyTimestamp(world.clock.now());
        EXPECT_EQ(messages->run(messageScript(ann, service, u"Hi"_s)).outcome, Outcome::success);
    }

    std::optional<SentRecord> record() {
        auto history = MessagesDB::open(home.historyPath());
        return history ? history->lastSent(ann, since).value() : std::nullopt;
    }

    // So long after the send: "-" without a record, else s for sent and d for delivered.
    QString flagsAfter(double seconds) {
        world.clock.advance(seconds - (world.clock.uptime() - sentAt));
        const auto found = record();
        if (!found)
            return u"-"_s;
        return QString(found->sent ? u"s"_s : QString()) + (found->delivered ? u"d"_s : QString());
    }

    VirtualSurroundings world;
    RehearsalHome home;
    std::unique_ptr<MessagesApplication> messages =
        std::make_unique<MessagesApplication>(world.clock, home.path());
    double sentAt = 0;
    qint64 since = 0;
};

// Catches a row that is there at once or with its flags set, a date other than the script's, and
// defaults that are lost without a settings file.
TEST_F(MessagesApplicationTest, TheRowComesFirstAndItsFlagsLater) {
    send(Service::sms);
    QStringList flags;
    for (const double seconds : {0.29, 0.31, 0.99, 1.01, 1.99, 2.01})
        flags.append(flagsAfter(seconds));
    EXPECT_EQ(flags.join(u'|'), u"-|||s|s|sd"_s);
    EXPECT_EQ(record()->service, u"SMS"_s);
    ++since;
    EXPECT_FALSE(record().has_value());
}

// Catches a person's setting that is overlooked or outranks the one of the service, settings kept
// from an earlier send, flags that fall before their row and are lost, and a never that comes.
TEST_F(MessagesApplicationTest, SettingsAreReadAtEverySendAndTheNarrowestCounts) {
    home.writeMessages(messagesOnLine(line, {{ann, R"({"line": "+12125550101", "error": 22,
        "deliveredAfter": null, "SMS": {"error": 0, "sentAfter": 4}})"}}));
    send();
    EXPECT_EQ(flagsAfter(60), u""_s) << "a text with an error never leaves";
    EXPECT_EQ(record()->error, 22);
    EXPECT_EQ(record()->line, otherLine);
    send(Service::sms);
    EXPECT_EQ(flagsAfter(3.9), u""_s);
    EXPECT_EQ(flagsAfter(60), u"s"_s);
    EXPECT_EQ(record()->error, 0);

    home.writeMessages(R"({"recordAfter": 5, "sentAfter": 1, "deliveredAfter": null})");
    send();
    EXPECT_EQ(flagsAfter(4.9), u"-"_s);
    EXPECT_EQ(flagsAfter(60), u"s"_s);
    home.writeMessages(R"({"recordAfter": null})");
    send();
    EXPECT_EQ(flagsAfter(60), u"-"_s);
}

// Catches a failing script that leaves a row, and broken settings that are taken for the defaults.
TEST_F(MessagesApplicationTest, AFailingScriptLeavesNothing) {
    const auto fails = [this](const QByteArray& settings) {
        home.writeMessages(settings);
        const auto result = messages->run(messageScript(ann, Service::iMessage, u"Hi"_s));
        EXPECT_EQ(result.outcome, Outcome::failure) << settings.constData();
        EXPECT_TRUE(world.clock.runUntilIdle(0)) << settings.constData();
        return result.message.value_or(QString()).toStdString();
    };
    EXPECT_EQ(fails(messagesOnLine(line, {{ann, R"({"scriptError": "Can't get participant."})"}})),
              "Can't get participant.");
    for (const QByteArray settings : {"{", "[]", R"({"line": 5})", R"({"error": 1.5})",
                                      R"({"people": {"+12125550123": {"iMessage": 5}}})"})
        EXPECT_THAT(fails(settings), testing::HasSubstr("messages.json"));
}

// Catches writing into a history that was deleted while the application ran, flags that fall on a
// stranger's row of a new one, a table or column of others that disturbs, and what is still to come
// being called on an application that has ended.
TEST_F(MessagesApplicationTest, ADeletedHistoryIsMadeAnewAndAnEndEndsAll) {
    static_cast<void>(home.history());
    changeHistory(home.historyPath(),
                  "CREATE TABLE attachment (a); ALTER TABLE message ADD COLUMN is_read DEFAULT 0");
    send();
    EXPECT_EQ(flagsAfter(10), u"sd"_s);
    send();
    EXPECT_EQ(flagsAfter(0.5), u""_s);
    for (const QString& suffix : {u""_s, u"-wal"_s, u"-shm"_s})
        QFile::remove(home.historyPath() + suffix);
    for (int row = 1; row <= 2; ++row)
        EXPECT_EQ(HistoryWriter::open(home.historyPath())->add({.handle = ann, .date = since}),
                  row);
    EXPECT_EQ(flagsAfter(10), u""_s);
    send();
    EXPECT_EQ(flagsAfter(0.5), u""_s);
    messages.reset();
    EXPECT_EQ(flagsAfter(60), u""_s);
}

}  // namespace
}  // namespace velmora
