#include <gtest/gtest.h>

#include <QRegularExpression>

#include "contacts/contacts_service.h"
#include "core/phone.h"
#include "history/messages_db.h"
#include "platform/rehearsal/rehearsal_platform.h"
#include "platform/rehearsal/sample/sample_home.h"
#include "support/rehearsal_home.h"
#include "support/virtual_surroundings.h"

using namespace velmora;

// Catches somebody's real number in what every rehearsal shows.
TEST(Sample, EveryNumberIsSetAsideForFiction) {
    static const QRegularExpression fiction(
        u"^(\\d{4,5}|.*@example\\.com|\\+1[2-9]\\d\\d55501\\d\\d|"
        "\\+447700900\\d{3}|\\+467017406(0[5-9]|[1-9]\\d))$"_s);
    VirtualSurroundings world;
    RehearsalHome home;
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
