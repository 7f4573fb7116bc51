#pragma once

#include <QString>

namespace velmora {

/// Why the Messages history could not be opened or read.
struct DBError {
    enum class Kind { open, query };

    Kind kind;
    QString message;  ///< SQLite's own text

    /// The finished sentence for the user.
    [[nodiscard]] QString description() const;
};

}  // namespace velmora
