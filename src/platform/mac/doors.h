#pragma once

#include <memory>

#include "app/desktop.h"
#include "app/doorbell.h"
#include "contacts/contact_source.h"
#include "history/account_preferences.h"
#include "sending/script_runner.h"

namespace velmora {

/// The address book of the Contacts framework.
[[nodiscard]] std::unique_ptr<ContactSource> makeMacContactSource();

/// Scripts run in this process, on the main thread.
[[nodiscard]] std::unique_ptr<ScriptRunner> makeMacScriptRunner();

/// The preferences of the Messages account.
[[nodiscard]] std::unique_ptr<AccountPreferences> makeMacAccountPreferences();

/// The workspace and this process's activities.
[[nodiscard]] std::unique_ptr<Desktop> makeMacDesktop();

/// The system's own list of what runs in this session.
[[nodiscard]] std::unique_ptr<Doorbell> makeMacDoorbell();

}  // namespace velmora
