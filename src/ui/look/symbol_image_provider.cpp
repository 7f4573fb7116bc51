#include "ui/look/symbol_image_provider.h"

#include <QStringList>
#include <algorithm>
#include <optional>
#include <utility>

using namespace Qt::StringLiterals;

namespace velmora {

namespace {

constexpr int defaultSide = 16;

std::optional<SymbolWeight> weightFrom(const QString& text) {
    if (text == "regular"_L1)
        return SymbolWeight::regular;
    if (text == "light"_L1)
        return SymbolWeight::light;
    if (text == "bold"_L1)
        return SymbolWeight::bold;
    return std::nullopt;
}

std::optional<QColor> tintFrom(const QString& text) {
    bool valid = false;
    const uint rgba = text.toUInt(&valid, 16);
    if (!valid || text.size() != 8)
        return std::nullopt;
    return QColor::fromRgba((rgba >> 8) | (rgba << 24));
}

QSize completed(QSize size) {
    const int side = std::max(size.width(), size.height()) > 0
                         ? std::max(size.width(), size.height())
                         : defaultSide;
    return {size.width() > 0 ? size.width() : side, size.height() > 0 ? size.height() : side};
}

}  // namespace

SymbolImageProvider::SymbolImageProvider(std::unique_ptr<NativeLook> look)
    : QQuickImageProvider(QQuickImageProvider::Image), look_(std::move(look)) {}

QImage SymbolImageProvider::requestImage(const QString& id, QSize* size,
                                         const QSize& requestedSize) {
    QImage made = image(id, completed(requestedSize));
    if (size != nullptr)
        *size = made.size();
    return made;
}

QImage SymbolImageProvider::image(const QString& id, QSize pixels) const {
    if (id == "applicationIcon"_L1)
        return look_->picture(SystemPicture::applicationIcon, pixels);
    if (id == "arrowPointer"_L1)
        return look_->picture(SystemPicture::arrowPointer, pixels);
    const QStringList fields = id.split(u'/');
    if (fields.size() != 3)
        return {};
    const auto weight = weightFrom(fields[1]);
    const auto tint = tintFrom(fields[2]);
    if (!weight || !tint)
        return {};
    return look_->symbol(fields[0], pixels, *tint, *weight);
}

}  // namespace velmora
