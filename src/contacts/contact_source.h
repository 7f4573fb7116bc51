#pragma once

#include <qcoro/qcorotask.h>

#include <QList>
#include <QString>
#include <QStringList>
#include <expected>
#include <functional>
#include <optional>
#include <vector>

namespace velmora {

using namespace Qt::StringLiterals;

/// One number on a contact's card.
struct PhoneEntry {
    std::optional<QString> label;  ///< the raw label as stored: a PhoneLabel or a custom text
    QString value;                 ///< as the user typed it

    friend bool operator==(const PhoneEntry&, const PhoneEntry&) = default;
};

/// What is read of one person: all linked cards merged, these properties and nothing else.
struct ContactRecord {
    QString identifier;
    QString givenName;
    QString familyName;
    QString nickname;
    QString organizationName;
    QList<PhoneEntry> phoneNumbers;  ///< in the card's order
    QStringList emailAddresses;      ///< in the card's order

    friend bool operator==(const ContactRecord&, const ContactRecord&) = default;
};

/// One address-book group.
struct GroupRecord {
    QString identifier;
    QString name;

    friend bool operator==(const GroupRecord&, const GroupRecord&) = default;
};

/// The platform's raw phone labels that outrank others, as this program spells them.
namespace PhoneLabel {
inline const QString mobile = u"_$!<Mobile>!$_"_s;
inline const QString iPhone = u"iPhone"_s;
inline const QString main = u"_$!<Main>!$_"_s;
}  // namespace PhoneLabel

/// Why the address book could not be read: the platform's own sentence.
struct ContactsError {
    QString description;
};

/// Whether the user lets Velmora read the address book. Only `authorized` counts as allowed.
enum class ContactAccess { notDetermined, restricted, denied, authorized };

/// The door to an address book. Reads are synchronous, afresh each time, on the interface thread.
class ContactSource {
  public:
    virtual ~ContactSource() = default;

    [[nodiscard]] virtual ContactAccess access() const = 0;

    /// Asks for access, the platform deciding whether to prompt. The answer, on the interface
    /// thread; an error counts as false.
    [[nodiscard]] virtual QCoro::Task<bool> requestAccess() = 0;

    /// Hands every unified contact to `visit`, in the store's order. Fails when the address book
    /// cannot be read, possibly after some were handed out.
    [[nodiscard]] virtual std::expected<void, ContactsError> enumerateContacts(
        const std::function<void(ContactRecord)>& visit) = 0;

    /// The unified members of a group, in the store's order. For an unknown group the platform may
    /// fail or give none.
    [[nodiscard]] virtual std::expected<std::vector<ContactRecord>, ContactsError> membersOfGroup(
        const QString& identifier) = 0;

    /// Every group, in the store's order. Fails when the address book cannot be read.
    [[nodiscard]] virtual std::expected<std::vector<GroupRecord>, ContactsError> allGroups() = 0;

    /// The word for a raw label in the user's language; a custom label comes back as itself.
    [[nodiscard]] virtual QString localizedLabel(const QString& label) const = 0;
};

}  // namespace velmora
