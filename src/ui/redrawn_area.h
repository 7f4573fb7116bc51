#pragma once

#include <QtQml/qqmlregistration.h>
#include <QQuickItem>

namespace velmora {

/// Lies unseen over things that move together, and is itself drawn anew whenever `position`
/// changes. The software renderer then finds one rectangle to draw first; without it, it adds up
/// the two places of each text that moved, which takes longer than drawing them.
class RedrawnArea : public QQuickItem {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(double position READ position WRITE setPosition NOTIFY positionChanged)

  public:
    explicit RedrawnArea(QQuickItem* parent = nullptr);

    [[nodiscard]] double position() const { return position_; }
    void setPosition(double position);

  Q_SIGNALS:
    void positionChanged();

  protected:
    QSGNode* updatePaintNode(QSGNode* node, UpdatePaintNodeData* data) override;

  private:
    double position_ = 0;
};

}  // namespace velmora
