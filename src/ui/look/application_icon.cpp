#include "ui/look/application_icon.h"

#include <QIconEngine>
#include <QPainter>

#include "ui/look/drawn_look.h"

namespace velmora {

namespace {

class DrawnIcon final : public QIconEngine {
  public:
    QPixmap pixmap(const QSize& size, QIcon::Mode /*mode*/, QIcon::State /*state*/) override {
        return QPixmap::fromImage(DrawnLook().picture(SystemPicture::applicationIcon, size));
    }
    void paint(QPainter* painter, const QRect& place, QIcon::Mode mode,
               QIcon::State state) override {
        painter->drawPixmap(place, pixmap(place.size(), mode, state));
    }
    [[nodiscard]] QIconEngine* clone() const override { return new DrawnIcon(*this); }
};

}  // namespace

QIcon applicationIcon() {
    return QIcon(new DrawnIcon);
}

}  // namespace velmora
