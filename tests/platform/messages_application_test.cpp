#include "platform/rehearsal/messages_application.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sqlite3.h>

#include <QDir>
#include <QFile>

#include "history/messages_db.h"
#include "platform/rehearsal/rehearsal_platform.h"
#include "sending/message_sender.h"
#include "support/rehearsal_home.h"
#include "support/virtual_surroundings.h"

using namespace Qt::Literals::StringLiterals;

namespace velmora {
namespace {

using testing::HasSubstr;
using Outcome = ScriptResult::Outcome;

const QString ann = QStringLiteral("+12125550123");
const QString line = QStringLiteral("+12125550100");
const QString otherLine = QStringLiteral("+12125550101");

class MessagesApplicationTest : public testing::Test {
  protected:
    ScriptResult send(Service service = Service::iMessage, const QString& text = u"Hi"_s) {
        return messages->run(messageScript(ann, service, text));
    }

    std::optional<SentRecord> record() {
        auto history = MessagesDB::open(home.historyPath());
        if (!history)
            return {};
        return history->lastSent(ann, since).value();
    }

    // "-" without a record, else a letter for each flag that is set: s sent, d delivered.
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
    double sentAt = world.clock.uptime();
    qint64 since = historyTimestamp(world.clock.now());
};

// Catches a row that is there at once or with its flags set, and a date other than the script's.
TEST_F(MessagesApplicationTest, TheRowComesFirstAndItsFlagsLater) {
    home.writeMessages(messagesOnLine(line));
    ASSERT_EQ(send().outcome, Outcome::success);
    EXPECT_EQ(flagsAfter(0.29), u"-"_s);
    EXPECT_EQ(flagsAfter(0.31), u""_s);
    EXPECT_EQ(record()->line, line);
    EXPECT_EQ(record()->service, u"iMessage"_s);
    EXPECT_EQ(flagsAfter(0.99), u""_s);
    EXPECT_EQ(flagsAfter(1.01), u"s"_s);
    EXPECT_EQ(flagsAfter(1.99), u"s"_s);
    EXPECT_EQ(flagsAfter(2.01), u"sd"_s);
    auto history = MessagesDB::open(home.historyPath()).value();
    EXPECT_FALSE(history.lastSent(ann, since + 1).value().has_value());
    EXPECT_EQ(history.thread(ann, {}).value()->line, line);
}

// Catches defaults that are lost without a settings file.
TEST_F(MessagesApplicationTest, WithoutSettingsTextsLeaveOnNoLine) {
    ASSERT_EQ(send(Service::sms).outcome, Outcome::success);
    EXPECT_EQ(flagsAfter(2), u"sd"_s);
    EXPECT_EQ(record()->line, QString());
    EXPECT_EQ(record()->service, u"SMS"_s);
}

// Catches a person's setting that is overlooked, or that outranks the one of the service.
TEST_F(MessagesApplicationTest, ThePersonOutranksEverybodyAndTheServiceThePerson) {
    home.writeMessages(messagesOnLine(line, {{ann, R"({"line": "+12125550101", "error": 22,
        "deliveredAfter": null, "SMS": {"error": 0, "sentAfter": 4}})"}}));
    ASSERT_EQ(send().outcome, Outcome::success);
    EXPECT_EQ(flagsAfter(60), u""_s) << "a text with an error never leaves";
    EXPECT_EQ(record()->error, 22);
    EXPECT_EQ(record()->line, otherLine);
    sentAt = world.clock.uptime();
    since = historyTimestamp(world.clock.now());
    ASSERT_EQ(send(Service::sms).outcome, Outcome::success);
    EXPECT_EQ(flagsAfter(3.9), u""_s);
    EXPECT_EQ(flagsAfter(60), u"s"_s);
    EXPECT_EQ(record()->error, 0);
    EXPECT_EQ(record()->line, otherLine);
}

// Catches flags that fall before their row and are lost, and a never that comes after all.
TEST_F(MessagesApplicationTest, FlagsWaitForTheirRowAndNullIsNever) {
    home.writeMessages(R"({"recordAfter": 5, "sentAfter": 1, "deliveredAfter": null})");
    ASSERT_EQ(send().outcome, Outcome::success);
    EXPECT_EQ(flagsAfter(4.9), u"-"_s);
    EXPECT_EQ(flagsAfter(60), u"s"_s);
    since = historyTimestamp(world.clock.now());
    home.writeMessages(R"({"recordAfter": null})");
    ASSERT_EQ(send().outcome, Outcome::success);
    EXPECT_TRUE(world.clock.runUntilIdle());
    EXPECT_FALSE(record().has_value());
}

// Catches settings that are kept from an earlier send, so that a line could not be put right.
TEST_F(MessagesApplicationTest, SettingsAreReadAfreshAtEverySend) {
    home.writeMessages(messagesOnLine(otherLine));
    ASSERT_EQ(send().outcome, Outcome::success);
    EXPECT_EQ(flagsAfter(10), u"sd"_s);
    EXPECT_EQ(record()->line, otherLine);
    home.writeMessages(messagesOnLine(line));
    ASSERT_EQ(send().outcome, Outcome::success);
    world.clock.advance(10);
    EXPECT_EQ(record()->line, line);
}

// Catches a failing script that leaves a row, and broken settings that are taken for the defaults.
TEST_F(MessagesApplicationTest, AFailingScriptLeavesNothing) {
    const auto fails = [this](const QByteArray& settings) {
        home.writeMessages(settings);
        const ScriptResult result = send();
        EXPECT_EQ(result.outcome, Outcome::failure) << settings.constData();
        EXPECT_TRUE(world.clock.runUntilIdle(0)) << settings.constData();
        EXPECT_FALSE(record().has_value());
        return result.message.value_or(QString()).toStdString();
    };
    EXPECT_EQ(fails(messagesOnLine(line, {{ann, R"({"scriptError": "Can't get participant."})"}})),
              "Can't get participant.");
    for (const QByteArray settings :
         {"{", "[]", R"({"line": 5})", R"({"sentAfter": "1"})", R"({"error": 1.5})",
          R"({"people": {"+12125550123": 5}})", R"({"people": {"+12125550123": {"iMessage": 5}}})"})
        EXPECT_THAT(fails(settings), HasSubstr("messages.json"));
    const ScriptResult foreign = messages->run(u"tell application \"Finder\""_s);
    EXPECT_EQ(foreign.outcome, Outcome::failure);
}

// Catches what is still to come being called on an application that has ended.
TEST_F(MessagesApplicationTest, WhatIsStillToComeIsDroppedWhenItEnds) {
    ASSERT_EQ(send().outcome, Outcome::success);
    EXPECT_EQ(flagsAfter(0.5), u""_s);
    messages.reset();
    EXPECT_EQ(flagsAfter(60), u""_s);
}

// Catches writing into a history that was deleted while the application ran.
TEST_F(MessagesApplicationTest, ADeletedHistoryIsMadeAnew) {
    ASSERT_EQ(send().outcome, Outcome::success);
    EXPECT_EQ(flagsAfter(10), u"sd"_s);
    for (const QString& name : {u"chat.db"_s, u"chat.db-wal"_s, u"chat.db-shm"_s})
        QFile::remove(home.path() + u"/Library/Messages/"_s + name);
    ASSERT_EQ(send().outcome, Outcome::success);
    world.clock.advance(10);
    EXPECT_TRUE(record().has_value());
}

// Catches a value of the preferences that is bent into a dictionary on its way.
TEST_F(MessagesApplicationTest, TheAliasesAreHandedThroughAsTheyAre) {
    const Platform platform = makeRehearsalPlatform(world.clock, home.path());
    EXPECT_FALSE(platform.accountPreferences->aliases().isValid());
    home.writeMessages(R"({"aliases": {"allAliases": ["+12125550100", "me@example.com"]}})");
    EXPECT_EQ(phoneAliases(*platform.accountPreferences), QStringList{line});
    home.writeMessages(R"({"aliases": "none"})");
    EXPECT_EQ(platform.accountPreferences->aliases(), QVariant(u"none"_s));
}

}  // namespace
}  // namespace velmora
