#include "ui/look/fixed_digits.h"

#include <QFontMetricsF>
#include <QGlyphRun>
#include <QPainter>
#include <QRawFont>
#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;

namespace velmora {

namespace {

bool isDigit(QChar character) {
    return character >= u'0' && character <= u'9';
}

// Latin letters, digits, punctuation and spaces: a glyph each, side by side.
bool isPlain(QChar character) {
    return (character >= u' ' && character <= u'\u024F') || character == u'\u202F';
}

double widestDigit(const QRawFont& face) {
    double widest = 0;
    for (const QPointF& advance :
         face.advancesForGlyphIndexes(face.glyphIndexesForString(u"0123456789"_s)))
        widest = std::max(widest, advance.x());
    return widest;
}

}  // namespace

FixedDigits::FixedDigits(QQuickItem* parent) : QQuickPaintedItem(parent) {
    useFont(font_);
}

void FixedDigits::setText(const QString& text) {
    if (text == text_)
        return;
    text_ = text;
    measure();
    Q_EMIT textChanged();
}

void FixedDigits::setColor(const QColor& color) {
    if (color == color_)
        return;
    color_ = color;
    update();
    Q_EMIT colorChanged();
}

void FixedDigits::setFontFamily(const QString& family) {
    QFont font(font_);
    font.setFamily(family);
    if (font != font_)
        useFont(font);
}

void FixedDigits::setPixelSize(int pixelSize) {
    QFont font(font_);
    font.setPixelSize(std::max(1, pixelSize));
    if (font != font_)
        useFont(font);
}

void FixedDigits::useFont(const QFont& font) {
    font_ = font;
    measure();
    Q_EMIT fontChanged();
}

void FixedDigits::measure() {
    const QFontMetricsF metrics(font_);
    const std::optional<double> width = placeGlyphs();
    // Whole pixels, as the toolkit's own texts have them: the picture is never drawn between two.
    setImplicitSize(std::ceil(width ? *width : metrics.horizontalAdvance(text_)),
                    std::ceil(metrics.height()));
    setBaselineOffset(std::ceil(metrics.ascent()));
    update();
}

std::optional<double> FixedDigits::placeGlyphs() {
    places_.clear();
    const QRawFont face = QRawFont::fromFont(font_);
    glyphs_ = face.glyphIndexesForString(text_);
    if (!std::ranges::all_of(text_, isPlain) || glyphs_.size() != text_.size() ||
        glyphs_.contains(0U))
        return std::nullopt;
    const QList<QPointF> advances = face.advancesForGlyphIndexes(glyphs_);
    const double digitWidth = widestDigit(face);
    double x = 0;
    for (qsizetype place = 0; place < text_.size(); ++place) {
        const double width = advances[place].x();
        const double room = isDigit(text_[place]) ? digitWidth : width;
        places_.append({x + ((room - width) / 2), 0});
        x += room;
    }
    return x;
}

void FixedDigits::paint(QPainter* painter) {
    painter->setPen(color_);
    if (places_.isEmpty()) {
        painter->setFont(font_);
        painter->drawText(QPointF(0, baselineOffset()), text_);
        return;
    }
    QGlyphRun run;
    run.setRawFont(QRawFont::fromFont(font_));
    run.setGlyphIndexes(glyphs_);
    run.setPositions(places_);
    painter->drawGlyphRun({0, baselineOffset()}, run);
}

}  // namespace velmora
