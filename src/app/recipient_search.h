#pragma once

#include <QString>
#include <vector>

#include "core/records.h"

namespace velmora {

/// Finds people of a list by name, company or phone while the user types. What is compared
/// is worked out once for a list.
class RecipientSearch {
  public:
    explicit RecipientSearch(const std::vector<Recipient>& recipients);

    /// Indexes of those whose name or company contains `typed`, letter case ignored, or whose phone
    /// contains its digits when there are at least 3; in the list's order, everyone when nothing
    /// but spaces and tabs is typed.
    [[nodiscard]] std::vector<qsizetype> find(const QString& typed) const;

  private:
    /// What is compared of everyone, one behind the other, and where each person's part ends.
    struct Block {
        QString text;
        std::vector<qsizetype> ends;

        void add(const QString& part);
        void mark(const QString& wanted, std::vector<bool>& found) const;
    };

    Block words_;  // names and companies
    Block phones_;
};

}  // namespace velmora
