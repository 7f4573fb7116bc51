#pragma once

#include <QtQml/qqmlregistration.h>
#include <QQuickPaintedItem>

namespace velmora {

/// An arrow pointer, black with a white rim. Its tip is the item's top left corner.
class ArrowPointer : public QQuickPaintedItem {
    Q_OBJECT
    QML_ELEMENT

  public:
    explicit ArrowPointer(QQuickItem* parent = nullptr);

    void paint(QPainter* painter) override;
};

}  // namespace velmora
