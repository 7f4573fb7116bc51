#pragma once

#include <functional>

#include "sending/script_runner.h"

namespace velmora {

/// Passes scripts on to Messages, counts them, and lets a test look at each before.
struct WatchedScripts final : ScriptRunner {
    explicit WatchedScripts(ScriptRunner& messages) : messages(messages) {}
    [[nodiscard]] ScriptResult run(const QString& source) override {
        ++count;
        if (before)
            before(source);
        return messages.run(source);
    }

    int count = 0;
    std::function<void(const QString& source)> before;
    ScriptRunner& messages;
};

}  // namespace velmora
