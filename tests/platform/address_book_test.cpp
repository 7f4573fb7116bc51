#include "platform/rehearsal/address_book.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <qcoro/qcorotask.h>

#include "support/rehearsal_home.h"

using namespace Qt::Literals::StringLiterals;

namespace velmora {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;

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

std::vector<QString> identifiers(const std::vector<ContactRecord>& people) {
    std::vector<QString> found;
    for (const ContactRecord& each : people)
        found.push_back(each.identifier);
    return found;
}

// Catches a first start without any file that is reported as a broken address book.
TEST_F(AddressBookTest, AMissingFileIsAnEmptyAddressBookThatMayBeRead) {
    EXPECT_EQ(book.access(), ContactAccess::authorized);
    EXPECT_TRUE(QCoro::waitFor(book.requestAccess()));
    EXPECT_TRUE(everybody().empty());
    EXPECT_TRUE(book.allGroups().value().empty());
}

// Catches a key taken from the wrong field, and a label made up for a number that has none.
TEST_F(AddressBookTest, ReadsEveryPropertyAndTakesAMissingKeyAsEmpty) {
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

// Catches members in the group's order, a member twice, and an unknown group taken for an empty
// one.
TEST_F(AddressBookTest, MembersComeInTheOrderOfTheBookAndAnUnknownGroupIsAnError) {
    home.writeContacts(addressBook({person(u"c1"_s, u"Zoe"_s, u"Z"_s), person(u"c2"_s, u"B"_s, {}),
                                    person(u"c3"_s, u"Ann"_s, u"A"_s)},
                                   {{u"g2"_s, u"Work"_s, {u"c3"_s, u"c1"_s, u"c3"_s, u"gone"_s}},
                                    {u"g1"_s, u"Family"_s, {}}}));
    EXPECT_THAT(identifiers(book.membersOfGroup(u"g2"_s).value()), ElementsAre(u"c1"_s, u"c3"_s));
    EXPECT_TRUE(book.membersOfGroup(u"g1"_s).value().empty());
    const auto groups = book.allGroups().value();
    ASSERT_EQ(groups.size(), 2U);
    EXPECT_EQ(groups[0].name, u"Work"_s);
    const auto unknown = book.membersOfGroup(u"g9"_s);
    ASSERT_FALSE(unknown.has_value());
    EXPECT_TRUE(unknown.error().description.endsWith(u'.'));
}

// Catches a read that goes on with part of a broken book, or that is kept from the user as denied.
TEST_F(AddressBookTest, ABrokenFileFailsEveryReadWithOneSentence) {
    for (const QByteArray json :
         {"{\"contacts\": [", "[]", R"({"contacts": {}})", R"({"contacts": [{"givenName": 5}]})",
          R"({"contacts": ["c1"]})", R"({"groups": [{"members": [1]}]})"}) {
        home.writeContacts(json);
        const auto people = book.enumerateContacts([](const ContactRecord&) {});
        const auto groups = book.allGroups();
        const auto members = book.membersOfGroup(u"g1"_s);
        ASSERT_FALSE(people || groups || members) << json.constData();
        EXPECT_EQ(people.error().description, groups.error().description);
        EXPECT_EQ(people.error().description, members.error().description);
        EXPECT_THAT(people.error().description.toStdString(), HasSubstr("contacts.json"));
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

// Catches a label shown as its raw constant, and a custom label that is lost.
TEST_F(AddressBookTest, LabelsAreWordsAndACustomLabelIsItself) {
    const std::map<QString, QString> words{
        {PhoneLabel::mobile, u"mobile"_s},  {PhoneLabel::iPhone, u"iPhone"_s},
        {PhoneLabel::main, u"main"_s},      {u"_$!<Home>!$_"_s, u"home"_s},
        {u"_$!<Work>!$_"_s, u"work"_s},     {u"_$!<Other>!$_"_s, u"other"_s},
        {u"Ferienhaus"_s, u"Ferienhaus"_s},
    };
    for (const auto& [label, word] : words)
        EXPECT_EQ(book.localizedLabel(label), word);
}

}  // namespace
}  // namespace velmora
