#pragma once

#include <QByteArray>
#include <memory>
#include <vector>

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

    [[nodiscard]] std::expected<Book, ContactsError> parse() const;
    /// The book as the file has it now; parsed only when its bytes are others than last time.
    [[nodiscard]] std::expected<std::shared_ptr<const Book>, ContactsError> read();

    QString path_;
    QByteArray bytes_;
    std::shared_ptr<const Book> book_;
};

}  // namespace velmora
