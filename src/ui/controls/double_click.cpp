#include "ui/controls/double_click.h"

#include <QGuiApplication>
#include <QStyleHints>

namespace velmora {

void DoubleClick::begin() {
    begun_ = model_.uptime();
}

bool DoubleClick::isUnderWay() const {
    constexpr double millisecond = 1e-3;
    const double interval = QGuiApplication::styleHints()->mouseDoubleClickInterval() * millisecond;
    return begun_ && model_.uptime() - *begun_ < interval;
}

}  // namespace velmora
