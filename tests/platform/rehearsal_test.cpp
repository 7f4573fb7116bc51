#include <gtest/gtest.h>
#include <qcoro/qcorotask.h>

#include <QFile>
#include <QRegularExpression>

#include "contacts/contacts_service.h"
#include "core/phone.h"
#include "history/messages_db.h"
#include "platform/rehearsal/address_book.h"
#include "platform/rehearsal/messages_application.h"
#include "platform/rehearsal/rehearsal_platform.h"
#include "platform/rehearsal/sample/sample_home.h"
#include "sending/message_sender.h"
#include "support/rehearsal_home.h"
#include "support/virtual_surroundings.h"

using namespace Qt::StringLiterals;

namespace velmora {
namespace {

const QString ann = u"+12125550123"_s;

class RehearsalTest : public testing::Test {
  protected:
    ScriptResult send(Service service = Service::iMessage) {
        sentAt = world.clock.uptime();
        since = historyTimestamp(world.clock.now());
        return messages.run(messageScript(ann, service, u"Hi"_s));
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
    MessagesApplication messages{world.clock, home.path()};
    double sentAt = 0;
    qint64 since = 0;
};

// Catches a read that goes on with part of a broken book, or that is kept from the user as denied.
TEST_F(RehearsalTest, ABrokenBookFailsEveryReadWithOneSentence) {
    AddressBook book(home.path());
    for (const QByteArray json :
         {"{\"contacts\": [", "[]", R"({"a": 1e999})", R"({"contacts": {}})",
          R"({"contacts": [{"givenName": 5}]})", R"({"contacts": ["c1"]})",
          R"({"groups": [{"members": [1]}]})", R"({"access": true})",
          R"({"contacts": [{"givenName": "Ann"}, {"givenName": "Bob"}]})"}) {
        home.writeContacts(json);
        const auto people = book.enumerateContacts([](const ContactRecord&) {});
        ASSERT_FALSE(people || book.allGroups() || book.membersOfGroup(u"g1"_s))
            << json.constData();
        EXPECT_TRUE(people.error().description.contains(u"contacts.json")) << json.constData();
        EXPECT_EQ(book.access(), ContactAccess::authorized);
    }
    const QString path = home.path() + u"/Library/Contacts/contacts.json"_s;
    ASSERT_TRUE(QFile::remove(path) && QFile::link(u"contacts.json"_s, path));
    EXPECT_FALSE(book.allGroups().has_value()) << "out of reach is not missing";
}

// Catches a row that is there at once or with its flags set, a date other than the script's,
// defaults that are lost without a settings file, settings kept from an earlier send, and flags
// that fall before their row and are lost.
TEST_F(RehearsalTest, TheRowComesFirstAndItsFlagsLater) {
    EXPECT_EQ(send(Service::sms).outcome, ScriptResult::Outcome::success);
    QStringList flags;
    for (const double seconds : {0.29, 0.31, 0.99, 1.01, 1.99, 2.01})
        flags.append(flagsAfter(seconds));
    EXPECT_EQ(flags.join(u'|'), u"-|||s|s|sd"_s);
    EXPECT_EQ(record()->service, u"SMS"_s);
    ++since;
    EXPECT_FALSE(record().has_value());
    home.writeMessages(R"({"recordAfter": 5, "sentAfter": 1, "deliveredAfter": null})");
    send();
    EXPECT_EQ(flagsAfter(4.9), u"-"_s);
    EXPECT_EQ(flagsAfter(60), u"s"_s);
}

// Catches a failing script that leaves a row, and broken settings that are taken for the defaults.
TEST_F(RehearsalTest, AFailingScriptLeavesNothing) {
    home.writeMessages(R"({"scriptError": "Can't get participant."})");
    EXPECT_EQ(send().message, u"Can't get participant."_s);
    for (const QByteArray settings :
         {"{", "[]", R"({"line": 5})", R"({"error": 1.5})", R"({"error": 1e300})",
          R"({"people": {"+12125550123": {"iMessage": 5}}})"}) {
        home.writeMessages(settings);
        const ScriptResult result = send();
        EXPECT_EQ(result.outcome, ScriptResult::Outcome::failure) << settings.constData();
        EXPECT_TRUE(result.message.value_or(QString()).contains(u"messages.json"));
    }
    EXPECT_TRUE(world.clock.runUntilIdle(0)) << "a row is still to come";
}

// Catches somebody's real number in what every rehearsal shows.
TEST_F(RehearsalTest, EveryNumberOfTheSampleIsSetAsideForFiction) {
    static const QRegularExpression fiction(
        u"^(\\d{4,5}|.*@example\\.com|\\+1[2-9]\\d\\d55501\\d\\d|"
        "\\+447700900\\d{3}|\\+467017406(0[5-9]|[1-9]\\d))$"_s);
    ASSERT_TRUE(prepareSampleHome(home.path(), world.clock.now()).has_value());
    const Platform platform = makeRehearsalPlatform(world.clock, home.path());
    QStringList numbers;
    const auto people = ContactsService(*platform.contacts).allContacts();
    for (const ContactRecord& person : people.value())
        for (const PhoneEntry& entry : person.phoneNumbers)
            numbers.append(entry.value);
    auto history = MessagesDB::open(home.historyPath()).value();
    const auto handles = history.query(
        u"SELECT id FROM handle UNION SELECT destination_caller_id FROM message"_s, {});
    for (const auto& row : handles.value())
        numbers.append(std::get<QString>(row.at(0)));
    EXPECT_GT(numbers.size(), 60);
    for (const QString& each : numbers)
        EXPECT_TRUE(fiction.match(normalizePhone(each).value_or(each)).hasMatch())
            << each.toStdString();
    EXPECT_EQ(history.senderNumbers(world.clock.now()).value().size(), 2U);
}

}  // namespace
}  // namespace velmora
