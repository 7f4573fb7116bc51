#pragma once

#include <memory>

#include "core/clock.h"
#include "history/account_preferences.h"
#include "sending/script_runner.h"

namespace velmora {

/// Messages in rehearsal: understands the script that sends a text and keeps the history of it as
/// its settings say: the row at first, its flags later. No text leaves the computer.
class MessagesApplication final : public ScriptRunner {
  public:
    /// `clock` outlives it. The history lies under `home`, beside the settings.
    MessagesApplication(Clock& clock, const QString& home);
    ~MessagesApplication() override;

    /// Reads the settings afresh. What the history is to show later is dropped when the application
    /// ends before.
    [[nodiscard]] ScriptResult run(const QString& source) override;

  private:
    class History;

    Clock& clock_;
    QString settingsPath_;
    std::shared_ptr<History> history_;
};

/// The preferences of the rehearsal's account: the value "aliases" of the settings of Messages.
class RehearsalAccount final : public AccountPreferences {
  public:
    explicit RehearsalAccount(QString home) : home_(std::move(home)) {}

    [[nodiscard]] QVariant aliases() const override;

  private:
    QString home_;
};

}  // namespace velmora
