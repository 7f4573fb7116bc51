#pragma once

#include <QtQml/qqmlregistration.h>
#include <QQuickItem>

namespace velmora {

/// Lies unseen over things that move together, and is itself drawn anew whenever `moved`
/// changes. The software renderer then finds one rectangle to draw first; without it, it adds up
/// the two places of each text that moved, which takes longer than drawing them.
class RedrawnArea : public QQuickItem {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QPointF moved READ moved WRITE setMoved NOTIFY movedChanged)

  public:
    explicit RedrawnArea(QQuickItem* parent = nullptr);

    [[nodiscard]] QPointF moved() const { return moved_; }
    void setMoved(QPointF moved);

  Q_SIGNALS:
    void movedChanged();

  protected:
    QSGNode* updatePaintNode(QSGNode* node, UpdatePaintNodeData* data) override;

  private:
    QPointF moved_;
};

}  // namespace velmora
