#include "platform/rehearsal/sample/sample_home.h"

#include <gtest/gtest.h>

#include <QRegularExpression>

#include "contacts/contacts_service.h"
#include "core/app_config.h"
#include "core/config_store.h"
#include "core/phone.h"
#include "history/messages_db.h"
#include "platform/rehearsal/rehearsal_platform.h"
#include "sending/message_sender.h"
#include "support/rehearsal_home.h"
#include "support/virtual_surroundings.h"

using namespace Qt::StringLiterals;

namespace velmora {
namespace {

class SampleHomeTest : public testing::Test {
  protected:
    SampleHomeTest() { EXPECT_TRUE(prepareSampleHome(path, world.clock.now()).has_value()); }

    MessagesDB history() { return MessagesDB::open(messagesHistoryPath(path)).value(); }

    VirtualSurroundings world;
    RehearsalHome folder;
    QString path = folder.path() + u"/sample"_s;
    Platform platform = makeRehearsalPlatform(world.clock, path);
    ContactsService contacts{*platform.contacts};
};

// Catches somebody's real number in what every rehearsal shows.
TEST_F(SampleHomeTest, EveryNumberIsSetAsideForFiction) {
    static const QRegularExpression fiction(
        u"^\\+(1[2-9]\\d\\d55501\\d\\d|447700900\\d{3}|467017406(0[5-9]|[1-9]\\d))$"_s);
    QStringList numbers;
    const auto people = contacts.allContacts();
    for (const ContactRecord& person : people.value()) {
        for (const PhoneEntry& entry : person.phoneNumbers)
            numbers.append(normalizePhone(entry.value).value_or(u"@example.com"_s));
    }
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

// Catches a guided tour without its fallback, wrong line, late or missing confirmation.
TEST_F(SampleHomeTest, FridayDinnerMeetsEachTroubleOnce) {
    const auto groups = contacts.readGroups().value();
    const auto dinner = std::ranges::find(groups, u"Friday Dinner"_s, &GroupInfo::name);
    ASSERT_NE(dinner, groups.end());
    const auto sent = [this](const QString& phone, Service service, double seconds) {
        const qint64 since = historyTimestamp(world.clock.now());
        EXPECT_EQ(platform.scripts->run(messageScript(phone, service, u"Hi"_s)).outcome,
                  ScriptResult::Outcome::success);
        world.clock.advance(seconds);
        return history().lastSent(phone, since).value();
    };
    QStringList troubles;
    const auto diners = contacts.contactsInList(dinner->id);
    for (const ContactRecord& diner : diners.value()) {
        const QString phone = contacts.bestPhone(diner).value().phone;
        const auto record = sent(phone, Service::iMessage, 7);
        if (!record)
            troubles.append(u"missing"_s);
        else if (record->error != 0)
            troubles.append(sent(phone, Service::sms, 7)->sent ? u"fallback"_s : u"failure"_s);
        else if (record->line != u"+12125550100")
            troubles.append(record->line);
        else if (!record->isConclusive())
            troubles.append(sent(phone, Service::iMessage, 9)->sent ? u"late"_s : u"never"_s);
    }
    EXPECT_EQ(troubles, (QStringList{u"fallback"_s, u"+12125550101"_s, u"late"_s, u"missing"_s}));
}

// Catches settings that are malformed (all defaults then) or keep a rehearsal from running at
// night, and a rehearsal's own changes that are overwritten by preparing its home again.
TEST_F(SampleHomeTest, AllowsAQuickRehearsalAtAnyHourAndIsPreparedOnce) {
    SupportFolder support(platform.applicationSupport);
    const AppConfig config = ConfigStore(support).load();
    EXPECT_LT(config.delayMax, 5);
    EXPECT_EQ(config.quietStart + u'-' + config.quietEnd, u"00:00-23:59"_s);
    EXPECT_FALSE(prepareSampleHome(path, world.clock.now()).has_value());
}

}  // namespace
}  // namespace velmora
