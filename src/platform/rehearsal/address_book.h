#pragma once

#include <QJsonObject>

#include "contacts/contact_source.h"
#include "platform/rehearsal/json_file.h"

namespace velmora {

/// An address book in the file "Library/Contacts/contacts.json" of a home folder, read afresh each
/// time. A missing file is an empty address book.
class AddressBook final : public ContactSource {
  public:
    explicit AddressBook(const QString& home);

    /// A file that cannot be read does not deny access, so that its error comes to light.
    [[nodiscard]] ContactAccess access() const override;
    [[nodiscard]] QCoro::Task<bool> requestAccess() override;
    [[nodiscard]] std::expected<void, ContactsError> enumerateContacts(
        const std::function<void(ContactRecord)>& visit) override;
    [[nodiscard]] std::expected<std::vector<ContactRecord>, ContactsError> membersOfGroup(
        const QString& identifier) override;
    [[nodiscard]] std::expected<std::vector<GroupRecord>, ContactsError> allGroups() override;
    [[nodiscard]] QString localizedLabel(const QString& label) const override;

  private:
    struct Group {
        GroupRecord record;
        QStringList members;
    };
    struct Book {
        std::vector<ContactRecord> contacts;
        std::vector<Group> groups;
    };

    [[nodiscard]] std::expected<Book, ContactsError> read() const;

    QString path_;
};

}  // namespace velmora
