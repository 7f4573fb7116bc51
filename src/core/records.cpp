#include "core/records.h"

namespace velmora {

QString serviceName(Service service) {
    return service == Service::sms ? QStringLiteral("SMS") : QStringLiteral("iMessage");
}

std::optional<Service> serviceNamed(QStringView name) {
    for (const Service service : {Service::iMessage, Service::sms})
        if (name == serviceName(service))
            return service;
    return std::nullopt;
}

}  // namespace velmora
