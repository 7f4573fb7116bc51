#pragma once

#include <QStringList>
#include <QVariant>

namespace velmora {

/// The door to the preferences of the Messages account.
class AccountPreferences {
  public:
    virtual ~AccountPreferences() = default;

    /// The value stored for the account's aliases, as the platform gives it: a QVariantMap when all
    /// is well, anything else or nothing when not.
    [[nodiscard]] virtual QVariant aliases() const = 0;
};

/// The account's phone numbers: the entries of "selectedAliases" that begin with "+", or, when
/// there are none, those of "allAliases". Empty when the value is no such dictionary.
[[nodiscard]] QStringList phoneAliases(const AccountPreferences& preferences);

}  // namespace velmora
