#pragma once

#include <QString>
#include <vector>

#include "core/records.h"

namespace velmora {

/// Finds people of a list by name, company or phone while the user types. Holds the names and
/// companies in the form that is compared, worked out once for a list.
class RecipientSearch {
  public:
    RecipientSearch() = default;
    explicit RecipientSearch(const std::vector<Recipient>& recipients);

    /// Indexes of those whose name or company contains `typed`, letter case ignored, or whose phone
    /// contains its digits when there are at least 3; in the list's order, everyone when nothing
    /// but spaces and tabs is typed.
    [[nodiscard]] std::vector<qsizetype> find(const QString& typed) const;

  private:
    struct Person {
        QString name;
        QString company;
        QString phone;
    };

    std::vector<Person> people_;
};

}  // namespace velmora
