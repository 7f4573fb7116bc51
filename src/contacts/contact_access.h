#pragma once

#include <QtGlobal>

#include "contacts/contact_source.h"

namespace velmora {

/// The access that the platform's permission status stands for: 0 not determined, 1 restricted, 2
/// denied, 3 authorized, as its public documentation numbers them. Any other status, among them a
/// limited one, counts as denied.
[[nodiscard]] constexpr ContactAccess contactAccessOf(qint64 status) {
    switch (status) {
        case 0:
            return ContactAccess::notDetermined;
        case 1:
            return ContactAccess::restricted;
        case 3:
            return ContactAccess::authorized;
        default:
            return ContactAccess::denied;
    }
}

}  // namespace velmora
