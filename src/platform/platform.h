#pragma once

#include <QString>
#include <memory>

#include "app/desktop.h"
#include "app/doorbell.h"
#include "contacts/contact_source.h"
#include "core/clock.h"
#include "history/account_preferences.h"
#include "sending/script_runner.h"
#include "ui/look/native_look.h"

namespace velmora {

/// The doors to the world that this build runs in, and where the user's files lie.
struct Platform {
    std::unique_ptr<ContactSource> contacts;
    std::unique_ptr<ScriptRunner> scripts;
    std::unique_ptr<AccountPreferences> accountPreferences;
    std::unique_ptr<Desktop> desktop;
    std::unique_ptr<Doorbell> doorbell;  ///< none in a home that only tests open
    std::unique_ptr<NativeLook> look;    ///< the system's own; none where the views bring theirs
    QString home;                        ///< the user's home folder
    QString applicationSupport;          ///< the folder that holds each application's own folder
};

/// The platform that the build chose; one folder beside this file defines it. `clock` outlives it.
[[nodiscard]] Platform makePlatform(Clock& clock);

}  // namespace velmora
