#pragma once

#include <QString>
#include <QStringList>
#include <expected>
#include <vector>

#include "contacts/contact_source.h"
#include "storage/files.h"

namespace velmora {

/// What a file of contacts holds.
struct ContactsFile {
    struct Group {
        GroupRecord record;
        QStringList members;
    };

    bool isDenied = false;  ///< nobody may read the rest, which is left out
    std::vector<ContactRecord> contacts;
    std::vector<Group> groups;
};

/// Reads the file, person by person. A missing file, and what is missing in it, is empty; anything
/// of a wrong type fails with a sentence that names the file.
[[nodiscard]] std::expected<ContactsFile, FileError> readContactsFile(const QString& path);

}  // namespace velmora
