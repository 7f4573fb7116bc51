#include "core/records.h"

using namespace Qt::StringLiterals;

namespace velmora {

QString serviceName(Service service) {
    return service == Service::sms ? u"SMS"_s : u"iMessage"_s;
}

std::optional<Service> serviceNamed(QStringView name) {
    for (const Service service : {Service::iMessage, Service::sms})
        if (name == serviceName(service))
            return service;
    return std::nullopt;
}

}  // namespace velmora
