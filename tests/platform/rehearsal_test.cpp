#include <gmock/gmock.h>
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

class RehearsalTest : public testing::Test {
  protected:
    VirtualSurroundings world;
    RehearsalHome home;
};

class AddressBookTest : public RehearsalTest {
  protected:
    AddressBook book{home.path()};
};

// Catches a read that goes on with part of a broken book, or that is kept from the user as denied.
TEST_F(AddressBookTest, ABrokenFileFailsEveryReadWithOneSentence) {
    for (const QByteArray json :
         {"{\"contacts\": [", "[]", R"({"contacts": {}})", R"({"contacts": [{"givenName": 5}]})",
          R"({"contacts": ["c1"]})", R"({"groups": [{"members": [1]}]})", R"({"access": true})",
          R"({"a": 1e999})", R"({"contacts": [{"givenName": "Ann"}, {"givenName": "Bob"}]})"}) {
        home.writeContacts(json);
        const auto people = book.enumerateContacts([](const ContactRecord&) {});
        ASSERT_FALSE(people || book.allGroups() || book.membersOfGroup(u"g1"_s))
            << json.constData();
        EXPECT_THAT(people.error().description.toStdString(), testing::HasSubstr("contacts.json"));
        EXPECT_EQ(book.access(), ContactAccess::authorized);
    }
    const QString path = home.path() + u"/Library/Contacts/contacts.json"_s;
    ASSERT_TRUE(QFile::remove(path) && QFile::link(u"contacts.json"_s, path));
    EXPECT_FALSE(book.allGroups().has_value()) << "out of reach is not missing";
}

const QString ann = u"+12125550123"_s;
const QString line = u"+12125550100"_s;

class MessagesApplicationTest : public RehearsalTest {
  protected:
    void send(Service service = Service::iMessage) {
        sentAt = world.clock.uptime();
        since = historyTimestamp(world.clock.now());
        EXPECT_EQ(messages->run(messageScript(ann, service, u"Hi"_s)).outcome,
                  ScriptResult::Outcome::success);
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

    std::optional<MessagesApplication> messages{std::in_place, world.clock, home.path()};
    double sentAt = 0;
    qint64 since = 0;
};

// Catches a row that is there at once or with its flags set, a date other than the script's,
// defaults that are lost without a settings file, settings kept from an earlier send, and flags
// that fall before their row and are lost.
TEST_F(MessagesApplicationTest, TheRowComesFirstAndItsFlagsLater) {
    send(Service::sms);
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
TEST_F(MessagesApplicationTest, AFailingScriptLeavesNothing) {
    const auto fails = [this](const QByteArray& settings) {
        home.writeMessages(settings);
        const auto result = messages->run(messageScript(ann, Service::iMessage, u"Hi"_s));
        EXPECT_EQ(result.outcome, ScriptResult::Outcome::failure) << settings.constData();
        EXPECT_TRUE(world.clock.runUntilIdle(0)) << settings.constData();
        return result.message.value_or(QString()).toStdString();
    };
    EXPECT_EQ(fails(messagesOnLine(line, {{ann, R"({"scriptError": "Can't get participant."})"}})),
              "Can't get participant.");
    for (const QByteArray settings :
         {"{", "[]", R"({"line": 5})", R"({"error": 1.5})", R"({"error": 1e300})",
          R"({"people": {"+12125550123": {"iMessage": 5}}})"})
        EXPECT_THAT(fails(settings), testing::HasSubstr("messages.json"));
}

class SampleHomeTest : public RehearsalTest {
  protected:
    SampleHomeTest() { EXPECT_TRUE(prepareSampleHome(path, world.clock.now()).has_value()); }

    MessagesDB history() { return MessagesDB::open(messagesHistoryPath(path)).value(); }

    QString path = home.path() + u"/sample"_s;
    Platform platform = makeRehearsalPlatform(world.clock, path);
    ContactsService contacts{*platform.contacts};
};

// Catches somebody's real number in what every rehearsal shows.
TEST_F(SampleHomeTest, EveryNumberIsSetAsideForFiction) {
    static const QRegularExpression fiction(
        u"^\\+(1[2-9]\\d\\d55501\\d\\d|447700900\\d{3}|467017406(0[5-9]|[1-9]\\d))$"_s);
    QStringList numbers;
    const auto people = contacts.allContacts();
    for (const ContactRecord& person : people.value())
        for (const PhoneEntry& entry : person.phoneNumbers)
            numbers.append(normalizePhone(entry.value).value_or(u"@example.com"_s));
    const auto handles = history().query(
        u"SELECT id FROM handle UNION SELECT destination_caller_id FROM message"_s, {});
    for (const auto& row : handles.value()) {
        const QString handle = std::get<QString>(row.at(0));
        numbers.append(normalizePhone(handle).value_or(handle));
    }
    EXPECT_GT(numbers.size(), 60);
    for (const QString& each : numbers)
        EXPECT_TRUE(each.endsWith(u"@example.com") || fiction.match(each).hasMatch())
            << each.toStdString();
    EXPECT_EQ(history().senderNumbers(world.clock.now()).value().size(), 2U);
}

}  // namespace
}  // namespace velmora
