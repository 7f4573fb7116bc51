#include "ui/svg_symbol_source.h"

#include <QFile>
#include <QLoggingCategory>
#include <QPainter>
#include <QSvgRenderer>

namespace velmora {

namespace {

QByteArray drawing(const QString& name, SymbolWeight weight) {
    QFile file(QStringLiteral(":/velmora/symbols/%1.svg").arg(name));
    if (!file.open(QIODevice::ReadOnly)) {
        return {};
    }
    QByteArray svg = file.readAll();
    if (weight == SymbolWeight::light) {
        svg.replace(R"(stroke-width="1.6")", R"(stroke-width="1")");
    }
    return svg;
}

}  // namespace

QImage SvgSymbolSource::symbol(const QString& name, QSize pixels, const QColor& tint,
                               SymbolWeight weight) const {
    if (pixels.isEmpty()) {
        return {};
    }
    QSvgRenderer renderer(drawing(name, weight));
    if (!renderer.isValid()) {
        qWarning("There is no symbol named \"%s\".", qUtf8Printable(name));
        return {};
    }
    renderer.setAspectRatioMode(Qt::KeepAspectRatio);
    QImage image(pixels, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    renderer.render(&painter, QRectF(QPointF(), pixels));
    painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
    painter.fillRect(image.rect(), tint);
    return image;
}

}  // namespace velmora
