#include "ui/menus/uncovered_area.h"

#include <QQuickWindow>

namespace velmora {

UncoveredArea::UncoveredArea(QQuickItem* parent) : QQuickItem(parent) {
    // What covers the rest is at a million.
    setZ(2e6);
    connect(this, &QQuickItem::windowChanged, this, &UncoveredArea::follow);
}

void UncoveredArea::follow(QQuickWindow* window) {
    if (window == nullptr || parentItem() == window->contentItem())
        return;
    setParentItem(window->contentItem());
    stackBefore(window->contentItem()->childItems().constFirst());
}

}  // namespace velmora
