#include "ui/arrow_pointer.h"

#include <QPainter>
#include <QPainterPath>
#include <QPolygonF>

namespace velmora {

namespace {

constexpr double drawnWidth = 14;
constexpr double drawnHeight = 20;
constexpr double rim = 1.2;

QPainterPath arrow() {
    QPainterPath path;
    path.addPolygon(QPolygonF({{1.2, 1.2},
                               {1.2, 15.6},
                               {4.7, 12.5},
                               {7.1, 18.1},
                               {9.7, 17.0},
                               {7.3, 11.5},
                               {11.9, 11.5}}));
    path.closeSubpath();
    return path;
}

}  // namespace

ArrowPointer::ArrowPointer(QQuickItem* parent) : QQuickPaintedItem(parent) {
    setImplicitSize(drawnWidth, drawnHeight);
    setAntialiasing(true);
}

void ArrowPointer::paint(QPainter* painter) {
    painter->setRenderHint(QPainter::Antialiasing);
    painter->scale(width() / drawnWidth, height() / drawnHeight);
    QPen pen(Qt::white, 2 * rim);
    pen.setJoinStyle(Qt::RoundJoin);
    painter->strokePath(arrow(), pen);
    painter->fillPath(arrow(), Qt::black);
}

}  // namespace velmora
