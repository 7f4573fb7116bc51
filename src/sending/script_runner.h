#pragma once

#include <QString>
#include <QVariant>
#include <optional>

namespace velmora {

/// What came of running a script.
struct ScriptResult {
    enum class Outcome { success, notPrepared, failure };

    Outcome outcome = Outcome::success;
    std::optional<QString> message;  ///< the platform's text on a failure, when it gave one
};

/// The result for an error that the platform reported; `message` is what its error dictionary holds
/// as the message, which counts only when it is text.
[[nodiscard]] inline ScriptResult scriptFailure(const QVariant& message) {
    ScriptResult result{ScriptResult::Outcome::failure, std::nullopt};
    if (message.typeId() == QMetaType::QString)
        result.message = message.toString();
    return result;
}

/// The door to the Messages application: runs a script's source text.
class ScriptRunner {
  public:
    virtual ~ScriptRunner() = default;

    /// Compiles and runs `source` and returns when it has ended. Blocks the interface thread
    /// meanwhile.
    [[nodiscard]] virtual ScriptResult run(const QString& source) = 0;
};

}  // namespace velmora
