#pragma once

#include <QString>
#include <optional>

namespace velmora {

/// What came of running a script.
struct ScriptResult {
    enum class Outcome { success, notPrepared, failure };

    Outcome outcome = Outcome::success;
    std::optional<QString> message;  ///< the platform's text on a failure, when it gave one
};

/// The door to the Messages application: runs a script's source text.
class ScriptRunner {
  public:
    virtual ~ScriptRunner() = default;

    /// Compiles and runs `source` and returns when it has ended. Blocks the interface thread
    /// meanwhile.
    [[nodiscard]] virtual ScriptResult run(const QString& source) = 0;
};

}  // namespace velmora
