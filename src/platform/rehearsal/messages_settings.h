#pragma once

#include <QString>
#include <QVariant>
#include <expected>
#include <optional>

#include "core/records.h"
#include "storage/files.h"

namespace velmora {

/// What Messages makes of one text. The times are seconds after the script; absent is never.
struct SendBehaviour {
    QString line;  ///< the user's number or address that it leaves on
    std::optional<double> recordAfter = 0.3;
    std::optional<double> sentAfter = 1.0;
    std::optional<double> deliveredAfter = 2.0;
    qint64 error = 0;  ///< the code it is recorded with; other than 0, it never leaves
    std::optional<QString> scriptError;  ///< when present, the script fails with it
};

/// Where the settings of the rehearsal's Messages lie under a home folder.
[[nodiscard]] QString messagesSettingsPath(const QString& home);

/// What the settings say of a text to `phone` over `service`: what stands for everybody, then under
/// the person, then under the person's service. A missing file leaves the defaults.
[[nodiscard]] std::expected<SendBehaviour, FileError> readSendBehaviour(const QString& path,
                                                                        const QString& phone,
                                                                        Service service);

/// The value that the settings hold for the account's aliases; invalid when there is none.
[[nodiscard]] QVariant readAliases(const QString& path);

}  // namespace velmora
