#include "platform/rehearsal/address_book.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <qcoro/qcorotask.h>

#include "support/rehearsal_home.h"

using namespace Qt::StringLiterals;

namespace velmora {
namespace {

class AddressBookTest : public testing::Test {
  protected:
    std::vector<ContactRecord> everybody() {
        std::vector<ContactRecord> people;
        const auto read = book.enumerateContacts(
            [&people](ContactRecord contact) { people.push_back(std::move(contact)); });
        EXPECT_TRUE(read.has_value());
        return people;
    }

    RehearsalHome home;
    AddressBook book{home.path()};
};

// Catches a key taken from the wrong field, and a label made up for a number that has none.
TEST_F(AddressBookTest, ReadsEveryPropertyAndTakesAMissingKeyOrFileAsEmpty) {
    EXPECT_TRUE(everybody().empty()) << "without a file";
    home.writeContacts(R"json({"contacts": [
        {"identifier": "c1", "givenName": "Ann", "familyName": "Lee", "nickname": "Annie",
         "organizationName": "Acme", "emailAddresses": ["b@example.com", "a@example.com"],
         "phoneNumbers": [{"label": "_$!<Home>!$_", "value": "(212) 555-0101"},
                          {"value": "+44 7700 900001"}]},
        {"identifier": "c2"}]})json");
    const auto people = everybody();
    ASSERT_EQ(people.size(), 2U);
    const ContactRecord& ann = people[0];
    EXPECT_EQ((QStringList{ann.givenName, ann.familyName, ann.nickname, ann.organizationName}),
              (QStringList{u"Ann"_s, u"Lee"_s, u"Annie"_s, u"Acme"_s}));
    EXPECT_EQ(ann.emailAddresses, (QStringList{u"b@example.com"_s, u"a@example.com"_s}));
    ASSERT_EQ(ann.phoneNumbers.size(), 2U);
    EXPECT_EQ(ann.phoneNumbers[0].label, u"_$!<Home>!$_"_s);
    EXPECT_EQ(ann.phoneNumbers[0].value, u"(212) 555-0101"_s);
    EXPECT_EQ(ann.phoneNumbers[1].label, std::nullopt);
    EXPECT_TRUE(people[1].givenName.isEmpty() && people[1].phoneNumbers.empty());
}

// Catches a member twice, a stranger in a group, and an unknown group taken for an empty one.
TEST_F(AddressBookTest, MembersComeInTheOrderOfTheBookAndAnUnknownGroupIsAnError) {
    home.writeContacts(addressBook(
        {person(u"c1"_s, u"Zoe"_s, {}), person(u"c2"_s, {}, {}), person(u"c3"_s, {}, {})},
        {{u"g2"_s, u"Work"_s, {u"c3"_s, u"c1"_s, u"c3"_s, u"gone"_s}}}));
    QStringList members;
    const auto work = book.membersOfGroup(u"g2"_s);
    for (const ContactRecord& each : work.value())
        members.append(each.identifier);
    EXPECT_EQ(members, (QStringList{u"c1"_s, u"c3"_s}));
    EXPECT_TRUE(book.membersOfGroup(u"g9"_s).error().description.endsWith(u'.'));
}

// Catches a read that goes on with part of a broken book, or that is kept from the user as denied.
TEST_F(AddressBookTest, ABrokenFileFailsEveryReadWithOneSentence) {
    for (const QByteArray json :
         {"{\"contacts\": [", "[]", R"({"contacts": {}})", R"({"contacts": [{"givenName": 5}]})",
          R"({"contacts": ["c1"]})", R"({"groups": [{"members": [1]}]})", R"({"access": true})"}) {
        home.writeContacts(json);
        const auto people = book.enumerateContacts([](const ContactRecord&) {});
        ASSERT_FALSE(people || book.allGroups() || book.membersOfGroup(u"g1"_s))
            << json.constData();
        EXPECT_THAT(people.error().description.toStdString(), testing::HasSubstr("contacts.json"));
        EXPECT_EQ(book.access(), ContactAccess::authorized);
    }
}

// Catches names read without permission, and permission remembered after the user took it away.
TEST_F(AddressBookTest, DeniedAccessRefusesEveryReadUntilItIsGranted) {
    home.writeContacts(R"({"access": "denied", "contacts": [{"identifier": "c1"}]})");
    EXPECT_EQ(book.access(), ContactAccess::denied);
    EXPECT_FALSE(QCoro::waitFor(book.requestAccess()));
    EXPECT_FALSE(book.enumerateContacts([](const ContactRecord&) { ADD_FAILURE(); }).has_value());
    EXPECT_FALSE(book.allGroups().has_value());
    home.writeContacts(R"({"access": "granted", "contacts": [{"identifier": "c1"}]})");
    EXPECT_TRUE(QCoro::waitFor(book.requestAccess()));
    EXPECT_EQ(everybody().size(), 1U);
}

}  // namespace
}  // namespace velmora
