#pragma once

#include <QByteArray>
#include <QObject>
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
    /// The book as the file has it now. What is read together is parsed once: until the event
    /// loop's next turn, as long as the file's bytes stay the same.
    [[nodiscard]] std::expected<std::shared_ptr<const Book>, ContactsError> read();
    void keep(std::shared_ptr<const Book> book, QByteArray bytes);
    void forget();

    QString path_;
    QByteArray bytes_;
    std::shared_ptr<const Book> book_;
    QObject turn_;  // what is to happen at the next turn goes with it
};

}  // namespace velmora
