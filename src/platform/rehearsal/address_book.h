#pragma once

#include <QObject>
#include <cstdint>
#include <expected>
#include <filesystem>
#include <memory>

#include "contacts/contact_source.h"
#include "platform/rehearsal/contacts_file.h"

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
    /// By what a change of the file shows.
    struct FileState {
        std::filesystem::file_time_type changed;
        std::uintmax_t size = 0;

        friend bool operator==(const FileState&, const FileState&) = default;
    };
    using SharedFile = std::shared_ptr<const ContactsFile>;

    /// The file as it is now. What is read together is parsed once: until the event loop's next
    /// turn, as long as the file stays as it was.
    [[nodiscard]] std::expected<SharedFile, ContactsError> read() const;
    /// The same, refused when access is denied.
    [[nodiscard]] std::expected<SharedFile, ContactsError> granted() const;

    QString path_;
    mutable SharedFile file_;
    mutable FileState state_;
    mutable QObject turn_;  // what is to happen at the next turn goes with it
};

}  // namespace velmora
