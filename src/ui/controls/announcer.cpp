#include "ui/controls/announcer.h"

#include <QAccessible>

namespace velmora {

void Announcer::alert(QQuickItem* item) {
    QAccessibleEvent event(item, QAccessible::Alert);
    QAccessible::updateAccessibility(&event);
}

}  // namespace velmora
