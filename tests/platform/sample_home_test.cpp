#include "platform/rehearsal/sample/sample_home.h"

#include <gtest/gtest.h>

#include <QRegularExpression>
#include <QSet>
#include <algorithm>

#include "contacts/contacts_service.h"
#include "core/app_config.h"
#include "core/config_store.h"
#include "core/phone.h"
#include "history/messages_db.h"
#include "platform/rehearsal/rehearsal_platform.h"
#include "sending/message_sender.h"
#include "support/rehearsal_home.h"
#include "support/virtual_surroundings.h"

using namespace Qt::Literals::StringLiterals;

namespace velmora {
namespace {

const QString firstLine = QStringLiteral("+12125550100");
const QString secondLine = QStringLiteral("+12125550101");

class SampleHomeTest : public testing::Test {
  protected:
    SampleHomeTest() : platform(makeRehearsalPlatform(world.clock, path)) {
        const auto prepared = prepareSampleHome(path, world.clock.now());
        EXPECT_TRUE(prepared.has_value()) << prepared.error().description.toStdString();
    }

    std::vector<ContactRecord> everybody() {
        std::vector<ContactRecord> people;
        EXPECT_TRUE(platform.contacts
                        ->enumerateContacts([&people](ContactRecord contact) {
                            people.push_back(std::move(contact));
                        })
                        .has_value());
        return people;
    }

    std::vector<ContactRecord> group(const QString& name) {
        const auto groups = platform.contacts->allGroups();
        for (const GroupRecord& each : groups.value()) {
            if (each.name == name)
                return platform.contacts->membersOfGroup(each.identifier).value();
        }
        return {};
    }

    QString phoneOf(const ContactRecord& person) {
        const auto best = ContactsService(*platform.contacts).bestPhone(person);
        return best ? best->phone : QString();
    }

    MessagesDB history() { return MessagesDB::open(messagesHistoryPath(path)).value(); }

    VirtualSurroundings world;
    RehearsalHome folder;
    QString path = folder.path() + u"/sample"_s;
    Platform platform;
};

// Catches somebody's real number in what every rehearsal shows.
TEST_F(SampleHomeTest, EveryNumberIsSetAsideForFiction) {
    static const QRegularExpression fiction(
        u"^\\+(1[2-9]\\d\\d55501\\d\\d|447700900\\d{3}|467017406(0[5-9]|[1-9]\\d))$"_s);
    int numbers = 0;
    for (const ContactRecord& person : everybody()) {
        for (const PhoneEntry& entry : person.phoneNumbers) {
            const auto number = normalizePhone(entry.value);
            EXPECT_TRUE(!number || fiction.match(*number).hasMatch()) << entry.value.toStdString();
            numbers += number ? 1 : 0;
        }
    }
    EXPECT_GT(numbers, 40);
    const auto handles = history().query(
        u"SELECT id FROM handle UNION SELECT destination_caller_id FROM message"_s, {});
    for (const auto& row : handles.value()) {
        const QString handle = std::get<QString>(row.at(0));
        const QString number = handle.startsWith(u'+') ? handle : u"+1"_s + handle;
        EXPECT_TRUE(handle.endsWith(u"@example.com") || fiction.match(number).hasMatch())
            << handle.toStdString();
    }
}

// Catches a special case that fell out of the address book.
TEST_F(SampleHomeTest, TheAddressBookShowsEveryKindOfPersonAndLabel) {
    const auto people = everybody();
    EXPECT_GE(people.size(), 40U);
    QSet<QString> identifiers;
    QSet<QString> numbers;
    QSet<QString> labels;
    QSet<QChar::Script> scripts;
    int sharing = 0;
    int nameless = 0;
    int nicknamed = 0;
    int withoutNumber = 0;
    int unusable = 0;
    for (const ContactRecord& person : people) {
        EXPECT_FALSE(identifiers.contains(person.identifier));
        identifiers.insert(person.identifier);
        const QString phone = phoneOf(person);
        sharing += !phone.isEmpty() && numbers.contains(phone) ? 1 : 0;
        numbers.insert(phone);
        nameless += person.givenName.isEmpty() && person.nickname.isEmpty() ? 1 : 0;
        nicknamed += person.givenName.isEmpty() && !person.nickname.isEmpty() ? 1 : 0;
        withoutNumber += person.phoneNumbers.empty() ? 1 : 0;
        unusable += !person.phoneNumbers.empty() && phone.isEmpty() ? 1 : 0;
        for (const PhoneEntry& entry : person.phoneNumbers)
            labels.insert(entry.label.value_or(u"(none)"_s));
        if (!person.givenName.isEmpty())
            scripts.insert(person.givenName.front().script());
    }
    EXPECT_TRUE(sharing > 0 && nameless > 0 && nicknamed > 0 && withoutNumber > 0 && unusable > 0);
    EXPECT_GE(scripts.size(), 8);
    for (const QString& label :
         {PhoneLabel::mobile, PhoneLabel::iPhone, PhoneLabel::main, u"_$!<Home>!$_"_s,
          u"_$!<Work>!$_"_s, u"_$!<Other>!$_"_s, u"Ferienhaus"_s, u"(none)"_s})
        EXPECT_TRUE(labels.contains(label)) << label.toStdString();
    for (const QString& name : {u"Family"_s, u"Friday Dinner"_s, u"Book Club"_s, u"Neighbours"_s})
        EXPECT_GE(group(name).size(), 8U) << name.toStdString();
}

// Catches a history too old to show both lines as the user's, and a conversation of a missing kind.
TEST_F(SampleHomeTest, TheHistoryHasBothLinesAndEveryKindOfConversation) {
    std::vector<QString> lines;
    const auto numbers = history().senderNumbers(world.clock.now());
    for (const NumberInfo& each : numbers.value())
        lines.push_back(each.number);
    EXPECT_EQ(lines, (std::vector{firstLine, secondLine}));
    QMap<QString, int> threads;
    for (const ContactRecord& person : everybody()) {
        const auto thread = history().thread(phoneOf(person), person.emailAddresses).value();
        ++threads[thread ? thread->line : u"none"_s];
    }
    for (const QString& kind : {firstLine, secondLine, u"me@example.com"_s, u"none"_s})
        EXPECT_GT(threads.value(kind), 0) << kind.toStdString();
    const auto inGroupOnly = history().query(
        u"SELECT id FROM handle WHERE id LIKE '+%' AND ROWID NOT IN (SELECT handle_id FROM"
        " chat_handle_join JOIN chat ON chat.ROWID = chat_id WHERE style = 45)"_s,
        {});
    EXPECT_EQ(inGroupOnly.value().size(), 2U);
}

// Catches a guided tour without its fallback, wrong line, late or missing confirmation.
TEST_F(SampleHomeTest, FridayDinnerMeetsEachTroubleOnce) {
    const auto diners = group(u"Friday Dinner"_s);
    ASSERT_EQ(diners.size(), 8U);
    const auto sent = [this](const ContactRecord& person, Service service, double seconds) {
        const QString phone = phoneOf(person);
        EXPECT_FALSE(phone.isEmpty() || person.givenName.isEmpty());
        const qint64 since = historyTimestamp(world.clock.now());
        const auto result = platform.scripts->run(messageScript(phone, service, u"Hi"_s));
        EXPECT_EQ(result.outcome, ScriptResult::Outcome::success);
        world.clock.advance(seconds);
        return history().lastSent(phone, since).value();
    };
    QStringList troubles;
    for (const ContactRecord& person : diners) {
        const auto record = sent(person, Service::iMessage, 7);
        if (!record)
            troubles.append(u"missing"_s);
        else if (record->error != 0)
            troubles.append(
                u"error %1, SMS %2"_s.arg(record->error).arg(sent(person, Service::sms, 7)->sent));
        else if (record->line != firstLine)
            troubles.append(record->line);
        else if (!record->isConclusive())
            troubles.append(sent(person, Service::iMessage, 9)->sent ? u"late"_s : u"never"_s);
    }
    EXPECT_EQ(troubles, (QStringList{u"error 22, SMS 1"_s, secondLine, u"late"_s, u"missing"_s}));
}

// Catches settings that are malformed (all defaults then) or keep a rehearsal from running at
// night.
TEST_F(SampleHomeTest, TheSettingsAllowAQuickRehearsalAtAnyHour) {
    const auto bytes = readFile(platform.applicationSupport + u"/Velmora/config.json"_s);
    ASSERT_TRUE(bytes.has_value());
    AppConfig expected;
    expected.delayMin = 2;
    expected.delayMax = 4;
    expected.quietStart = u"00:00"_s;
    expected.quietEnd = u"23:59"_s;
    EXPECT_EQ(decodeConfig(*bytes), expected);
}

// Catches a rehearsal's own changes that are overwritten by preparing its home again.
TEST_F(SampleHomeTest, AHomeIsPreparedOnce) {
    const auto again = prepareSampleHome(path, world.clock.now());
    ASSERT_FALSE(again.has_value());
    EXPECT_TRUE(again.error().description.endsWith(u'.'));
}

}  // namespace
}  // namespace velmora
