#include "ui/controls/unspoken_area.h"

#include <QAccessible>
#include <QAccessibleObject>
#include <QQuickWindow>

namespace velmora {

namespace {

/// Invisible to a screen reader, and without anything in it.
class UnspokenInterface final : public QAccessibleObject {
  public:
    explicit UnspokenInterface(UnspokenArea* area) : QAccessibleObject(area), area_(area) {}

    [[nodiscard]] QWindow* window() const override { return area_->window(); }
    [[nodiscard]] QAccessibleInterface* parent() const override {
        return QAccessible::queryAccessibleInterface(window());
    }
    [[nodiscard]] QAccessibleInterface* child(int) const override { return nullptr; }
    [[nodiscard]] int childCount() const override { return 0; }
    [[nodiscard]] int indexOfChild(const QAccessibleInterface*) const override { return -1; }
    [[nodiscard]] QString text(QAccessible::Text) const override { return {}; }
    [[nodiscard]] QAccessible::Role role() const override { return QAccessible::Pane; }
    [[nodiscard]] QAccessible::State state() const override {
        QAccessible::State hidden;
        hidden.invisible = true;
        return hidden;
    }

  private:
    UnspokenArea* area_;
};

QAccessibleInterface* interfaceOf(const QString&, QObject* object) {
    auto* area = qobject_cast<UnspokenArea*>(object);
    return area == nullptr ? nullptr : new UnspokenInterface(area);
}

}  // namespace

UnspokenArea::UnspokenArea(QQuickItem* parent) : QQuickItem(parent) {
    QAccessible::installFactory(&interfaceOf);
}

}  // namespace velmora
