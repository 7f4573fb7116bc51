#include "ui/look/drawn_look.h"

#include <QFile>
#include <QPainter>
#include <QSvgRenderer>
#include <algorithm>

using namespace Qt::StringLiterals;

namespace velmora {

namespace {

QByteArray drawing(const QString& name, SymbolWeight weight) {
    QFile file(u":/velmora/symbols/%1.svg"_s.arg(name));
    if (!file.open(QIODevice::ReadOnly))
        return {};
    QByteArray svg = file.readAll();
    if (weight != SymbolWeight::regular)
        svg.replace(R"(stroke-width="1.6")", weight == SymbolWeight::light
                                                 ? R"(stroke-width="1")"
                                                 : R"(stroke-width="2.6")");
    return svg;
}

QImage drawn(QSvgRenderer& renderer, QSize pixels, const QRectF& place) {
    renderer.setAspectRatioMode(Qt::KeepAspectRatio);
    QImage image(pixels, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    renderer.render(&painter, place);
    return image;
}

}  // namespace

QImage DrawnLook::symbol(const QString& name, QSize pixels, const QColor& tint,
                         SymbolWeight weight) const {
    if (pixels.isEmpty())
        return {};
    QSvgRenderer renderer(drawing(name, weight));
    if (!renderer.isValid()) {
        qWarning("There is no symbol named \"%s\".", qUtf8Printable(name));
        return {};
    }
    const QSize own = renderer.defaultSize();
    pixels.setWidth(std::max(pixels.width(), pixels.height() * own.width() / own.height()));
    QImage image = drawn(renderer, pixels, QRectF(QPointF(), pixels));
    QPainter painter(&image);
    painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
    painter.fillRect(image.rect(), tint);
    return image;
}

QImage DrawnLook::picture(SystemPicture which, QSize pixels) const {
    if (pixels.isEmpty())
        return {};
    if (which == SystemPicture::applicationIcon) {
        // Small ones have a drawing of their own, without the lines that would blur.
        const int side = std::min(pixels.width(), pixels.height());
        QSvgRenderer icon(side <= 32 ? u":/velmora/icon/velmora-small.svg"_s
                                     : u":/velmora/icon/velmora.svg"_s);
        return drawn(icon, pixels, QRectF(QPointF(), pixels));
    }
    QSvgRenderer pointer(u":/velmora/icon/arrow_pointer.svg"_s);
    const double scale = pixels.width() / pointerPicturePoints;
    return drawn(pointer, pixels, QRectF(QPointF(), QSizeF(pointer.defaultSize()) * scale));
}

}  // namespace velmora
