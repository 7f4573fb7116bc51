#pragma once

#include <QString>
#include <vector>

#include "core/records.h"

namespace velmora {

/// Finds people of a list by name, company or phone while the user types. Holds what is compared in
/// one text, worked out once for a list.
class RecipientSearch {
  public:
    explicit RecipientSearch(const std::vector<Recipient>& recipients);

    /// Indexes of those whose name or company contains `typed`, letter case ignored, or whose phone
    /// contains its digits when there are at least 3; in the list's order, everyone when nothing
    /// but spaces and tabs is typed.
    [[nodiscard]] std::vector<qsizetype> find(const QString& typed) const;

  private:
    /// Where a person's part of the text ends; it begins where the one before ends.
    struct Ends {
        qsizetype name = 0;
        qsizetype company = 0;
        qsizetype phone = 0;
    };

    QString text_;  // each person's name, company and phone, one behind the other
    std::vector<Ends> people_;
};

}  // namespace velmora
