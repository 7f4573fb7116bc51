#pragma once

#include <QtQml/qqmlregistration.h>
#include <QQuickItem>

namespace velmora {

/// Lies over all that covers the window's content, sheets and their dimming included, at the top
/// left of the window, and is read before the rest.
class UncoveredArea : public QQuickItem {
    Q_OBJECT
    QML_ELEMENT

  public:
    explicit UncoveredArea(QQuickItem* parent = nullptr);

  private:
    void follow(QQuickWindow* window);
};

}  // namespace velmora
