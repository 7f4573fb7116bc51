#pragma once

#include <expected>
#include <optional>
#include <vector>

#include "contacts/contact_source.h"
#include "core/records.h"

namespace velmora {

/// The number of a person that a text goes to.
struct BestPhone {
    QString phone;  ///< "+" and digits
    QString label;  ///< the localised label it stands under, or empty
};

/// The one reader of the address book: groups with their sizes, the people of a list, each person's
/// one number. Caches nothing.
class ContactsService {
  public:
    /// `store` outlives the service.
    explicit ContactsService(ContactSource& store) : store_(store) {}

    /// True without asking when access is granted, else the answer to asking.
    [[nodiscard]] QCoro::Task<bool> requestAccess();

    /// Everyone with at least one phone number, usable or not, in the store's order.
    [[nodiscard]] std::expected<std::vector<ContactRecord>, ContactsError> allContacts();

    /// The people of a list, in the store's order: everyone of `allContacts` for `allContactsID`,
    /// else the members of that group, those without a number included.
    [[nodiscard]] std::expected<std::vector<ContactRecord>, ContactsError> contactsInList(
        const QString& listID);

    /// All groups with their member counts, sorted by name as the user's language sorts, letter
    /// case ignored; equal names keep the store's order. A group that cannot be counted has 0.
    [[nodiscard]] std::expected<std::vector<GroupInfo>, ContactsError> readGroups();

    /// The first number that normalises, mobile before iPhone before main before all others, the
    /// card's order deciding among equals. Nothing when none does.
    [[nodiscard]] std::optional<BestPhone> bestPhone(const ContactRecord& person) const;

  private:
    ContactSource& store_;
};

}  // namespace velmora
