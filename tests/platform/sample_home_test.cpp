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

// Catches settings that are malformed (all defaults then) or keep a rehearsal from running at
// night, and a rehearsal's own changes that are overwritten by preparing its home again.
TEST_F(SampleHomeTest, AllowsAQuickRehearsalAtAnyHourAndIsPreparedOnce) {
    SupportFolder support(platform.applicationSupport);
    const AppConfig config = ConfigStore(support).load();
    EXPECT_LT(config.delayMax, 5);
    EXPECT_LT(config.verifyWait, 8) << "Elena's late confirmation would never be seen";
    EXPECT_EQ(config.quietStart + u'-' + config.quietEnd, u"00:00-23:59"_s);
    EXPECT_FALSE(prepareSampleHome(path, world.clock.now()).has_value());
}

}  // namespace
}  // namespace velmora
