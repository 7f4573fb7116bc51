#import <Contacts/Contacts.h>

#include "contacts/contact_access.h"
#include "platform/mac/contact_access_request.h"
#include "platform/mac/doors.h"
#include "platform/mac/native_text.h"
#include "platform/mac/phone_labels.h"

namespace velmora {

namespace {

// The six properties that are read of every person, and no others.
NSArray<id<CNKeyDescriptor>>* contactKeys() {
    return @[
        CNContactGivenNameKey, CNContactFamilyNameKey, CNContactNicknameKey,
        CNContactOrganizationNameKey, CNContactPhoneNumbersKey, CNContactEmailAddressesKey
    ];
}

// A store that fails may leave out why.
ContactsError errorOf(NSError* error) {
    return {error != nil ? textOf(error.localizedDescription)
                         : QStringLiteral("The address book could not be read.")};
}

ContactRecord recordOf(CNContact* contact) {
    ContactRecord record{.identifier = textOf(contact.identifier),
                         .givenName = textOf(contact.givenName),
                         .familyName = textOf(contact.familyName),
                         .nickname = textOf(contact.nickname),
                         .organizationName = textOf(contact.organizationName),
                         .phoneNumbers = {},
                         .emailAddresses = {}};
    for (CNLabeledValue<CNPhoneNumber*>* phone in contact.phoneNumbers)
        record.phoneNumbers.push_back({phoneLabelOf(phone.label), textOf(phone.value.stringValue)});
    for (CNLabeledValue<NSString*>* address in contact.emailAddresses)
        record.emailAddresses.append(textOf(address.value));
    return record;
}

class MacContactSource final : public ContactSource {
   public:
    ContactAccess access() const override {
        return contactAccessOf(
            [CNContactStore authorizationStatusForEntityType:CNEntityTypeContacts]);
    }

    QCoro::Task<bool> requestAccess() override {
        AccessRequest request(store_);
        co_return co_await request;
    }

    std::expected<void, ContactsError> enumerateContacts(
        const std::function<void(ContactRecord)>& visit) override {
        CNContactFetchRequest* request =
            [[CNContactFetchRequest alloc] initWithKeysToFetch:contactKeys()];
        request.unifyResults = YES;
        NSError* error = nil;
        const BOOL finished =
            [store_ enumerateContactsWithFetchRequest:request
                                                error:&error
                                           usingBlock:^(CNContact* contact, BOOL*) {
                                               visit(recordOf(contact));
                                           }];
        if (!finished) return std::unexpected(errorOf(error));
        return {};
    }

    std::expected<std::vector<ContactRecord>, ContactsError> membersOfGroup(
        const QString& identifier) override {
        NSError* error = nil;
        NSArray<CNContact*>* members =
            [store_ unifiedContactsMatchingPredicate:
                        [CNContact predicateForContactsInGroupWithIdentifier:nativeText(identifier)]
                                         keysToFetch:contactKeys()
                                               error:&error];
        if (members == nil) return std::unexpected(errorOf(error));
        std::vector<ContactRecord> records;
        for (CNContact* member in members) records.push_back(recordOf(member));
        return records;
    }

    std::expected<std::vector<GroupRecord>, ContactsError> allGroups() override {
        NSError* error = nil;
        NSArray<CNGroup*>* groups = [store_ groupsMatchingPredicate:nil error:&error];
        if (groups == nil) return std::unexpected(errorOf(error));
        std::vector<GroupRecord> records;
        for (CNGroup* group in groups)
            records.push_back({textOf(group.identifier), textOf(group.name)});
        return records;
    }

    QString localizedLabel(const QString& label) const override {
        return textOf([CNLabeledValue localizedStringForLabel:nativePhoneLabel(label)]);
    }

   private:
    CNContactStore* store_ = [[CNContactStore alloc] init];
};

}  // namespace

std::unique_ptr<ContactSource> makeMacContactSource() {
    return std::make_unique<MacContactSource>();
}

}  // namespace velmora
