#include "ui/look/redrawn_area.h"

#include <QQuickWindow>
#include <QSGRectangleNode>
#include <QSGRendererInterface>

namespace velmora {

RedrawnArea::RedrawnArea(QQuickItem* parent) : QQuickItem(parent) {
    setFlag(ItemHasContents);
}

void RedrawnArea::setMoved(QPointF moved) {
    if (moved == moved_)
        return;
    moved_ = moved;
    update();
    Q_EMIT movedChanged();
}

QSGNode* RedrawnArea::updatePaintNode(QSGNode* node, UpdatePaintNodeData* /*data*/) {
    const QSGRendererInterface* renderer = window()->rendererInterface();
    if (renderer->graphicsApi() != QSGRendererInterface::Software)
        return node;
    auto* rectangle = static_cast<QSGRectangleNode*>(node);
    if (rectangle == nullptr)
        rectangle = window()->createRectangleNode();
    rectangle->setRect(boundingRect());
    rectangle->setColor(Qt::transparent);
    rectangle->markDirty(QSGNode::DirtyMaterial);
    return rectangle;
}

}  // namespace velmora
