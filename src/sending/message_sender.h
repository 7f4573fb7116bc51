#pragma once

#include <QString>
#include <expected>

#include "core/records.h"
#include "sending/script_runner.h"

namespace velmora {

/// Why a text could not be handed to Messages.
struct SendError {
    QString description;  ///< the sentence for the user
};

/// Hands one finished text to Messages. Success says only that Messages took the script without an
/// error.
class MessageSender {
  public:
    /// `runner` outlives the sender.
    explicit MessageSender(ScriptRunner& runner) : runner_(runner) {}

    /// Sends `text` to `phone` over `service`. Blocks until Messages has run the script. Fails when
    /// the script could not be prepared or Messages reported an error: its own sentence when it
    /// gave one.
    [[nodiscard]] std::expected<void, SendError> send(const QString& phone, Service service,
                                                      const QString& text);

  private:
    ScriptRunner& runner_;
};

/// The script that sends `text` to `phone` over `service`: five lines, the texts escaped.
[[nodiscard]] QString messageScript(const QString& phone, Service service, const QString& text);

/// `text` as it stands between the quotation marks of a string in the script language: backslashes,
/// then quotation marks, each with a backslash before it.
[[nodiscard]] QString escapedForScript(const QString& text);

}  // namespace velmora
