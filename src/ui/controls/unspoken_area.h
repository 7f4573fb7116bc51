#pragma once

#include <QtQml/qqmlregistration.h>
#include <QQuickItem>

namespace velmora {

/// Holds what can be covered: while this item is not `Accessible.ignored`, a screen reader finds
/// nothing in it, and so presses nothing.
class UnspokenArea : public QQuickItem {
    Q_OBJECT
    QML_ELEMENT

  public:
    explicit UnspokenArea(QQuickItem* parent = nullptr);
};

}  // namespace velmora
