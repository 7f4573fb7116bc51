#include "contacts/contacts_service.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>

#include "contacts/contact_access.h"

using namespace Qt::StringLiterals;

using namespace velmora;

using People = std::expected<std::vector<ContactRecord>, ContactsError>;

/// An address book of what a test puts in. Reading or asking for anything else fails the test.
struct BookInMemory final : ContactSource {
    [[nodiscard]] ContactAccess access() const override { return permission; }
    QCoro::Task<bool> requestAccess() override {
        EXPECT_TRUE(answer.has_value()) << "asked for access";
        co_return answer.value_or(false);
    }
    std::expected<void, ContactsError> enumerateContacts(
        const std::function<void(ContactRecord)>& visit) override {
        if (!everyone)
            return std::unexpected(everyone.error());
        std::ranges::for_each(*everyone, visit);
        return {};
    }
    People membersOfGroup(const QString& identifier) override { return members.at(identifier); }
    std::expected<std::vector<GroupRecord>, ContactsError> allGroups() override { return groups; }
    [[nodiscard]] QString localizedLabel(const QString& label) const override {
        return label == u"_$!<Home>!$_" ? u"casa"_s : label;
    }

    ContactAccess permission = ContactAccess::authorized;
    std::optional<bool> answer;  ///< to being asked for access
    People everyone;
    std::expected<std::vector<GroupRecord>, ContactsError> groups;
    std::map<QString, People> members;
};

ContactRecord personWith(const QList<PhoneEntry>& phones) {
    ContactRecord person;
    person.phoneNumbers = phones;
    return person;
}

struct ContactsTest : ::testing::Test {
    BookInMemory book;
    ContactsService service{book};
};

// A user who is asked again, or never.
TEST_F(ContactsTest, AccessIsAskedForOnlyWhenItIsNotYetAuthorized) {
    EXPECT_TRUE(QCoro::waitFor(service.requestAccess()));
    for (qint64 status = -1; status <= 5; ++status) {
        book.permission = contactAccessOf(status);
        EXPECT_EQ(book.permission == ContactAccess::authorized, status == 3) << status;
        for (const bool answer : {true, false}) {
            book.answer = answer;
            EXPECT_EQ(QCoro::waitFor(service.requestAccess()), answer || status == 3);
        }
    }
}

// People who are not offered, and a failure that looks like a book without any.
TEST_F(ContactsTest, WhoHasNoNumberIsLeftOutOnlyInAllContacts) {
    EXPECT_EQ(service.contactsInList(allContactsID)->size(), 0);
    book.everyone = {personWith({{{}, u"12"_s}}), personWith({})};
    book.members = {{u"club"_s, book.everyone}};
    EXPECT_EQ(service.contactsInList(allContactsID)->size(), 1) << "unusable numbers count too";
    EXPECT_EQ(service.contactsInList(u"club"_s)->size(), 2);
    book.everyone = std::unexpected(ContactsError{u"The store is gone."_s});
    EXPECT_EQ(service.contactsInList(allContactsID).error().description, u"The store is gone.");
}

// A group that is not found in the list, or hidden because another's members cannot be read.
TEST_F(ContactsTest, GroupsAreCountedAndSortedWhateverTheLetterCase) {
    EXPECT_TRUE(service.readGroups()->empty());
    book.groups = {{{u"1"_s, u"work"_s}, {u"2"_s, u"Club"_s}, {u"3"_s, u"Work"_s}}};
    book.members = {{u"1"_s, std::vector(2, personWith({}))},
                    {u"2"_s, std::unexpected(ContactsError{u"Unknown group."_s})},
                    {u"3"_s, {}}};
    const std::vector<GroupInfo> expected{
        {u"2"_s, u"Club"_s, 0}, {u"1"_s, u"work"_s, 2}, {u"3"_s, u"Work"_s, 0}};
    EXPECT_EQ(service.readGroups().value(), expected);
    book.groups = std::unexpected(ContactsError{u"No permission."_s});
    EXPECT_EQ(service.readGroups().error().description, u"No permission.");
}

// A text to the landline, or to nobody although one number would do.
TEST_F(ContactsTest, TheBestPhoneIsTheFirstUsableOneOfTheHighestRank) {
    const PhoneEntry atHome{u"_$!<Home>!$_"_s, u"(415) 555-0100"_s};
    const PhoneEntry mobile{PhoneLabel::mobile, u"415 555 0101"_s};
    const PhoneEntry iPhone{PhoneLabel::iPhone, u"415 555 0102"_s};
    const PhoneEntry main{PhoneLabel::main, u"415 555 0103"_s};
    const PhoneEntry tooShort{PhoneLabel::mobile, u"41555"_s};
    const PhoneEntry custom{u"boat"_s, u"+44 7700 900 123"_s};
    const PhoneEntry bare{{}, u"1 415 555 0105"_s};
    const std::vector<std::pair<QList<PhoneEntry>, QString>> cases{
        {{atHome, main, iPhone, mobile, {PhoneLabel::mobile, u"415 555 0104"_s}},
         u"+14155550101 "_s + PhoneLabel::mobile},
        {{atHome, main, iPhone}, u"+14155550102 "_s + PhoneLabel::iPhone},
        {{custom, atHome, main}, u"+14155550103 "_s + PhoneLabel::main},
        {{atHome, tooShort, custom}, u"+14155550100 casa"_s},
        {{custom, atHome}, u"+447700900123 boat"_s},
        {{bare, custom}, u"+14155550105 "_s},
        {{tooShort}, u" "_s}};
    for (const auto& [card, expected] : cases) {
        const BestPhone best = service.bestPhone(personWith(card)).value_or(BestPhone());
        EXPECT_EQ(best.phone + u' ' + best.label, expected);
    }
}
