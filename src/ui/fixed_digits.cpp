#include "ui/fixed_digits.h"

#include <QFontMetricsF>
#include <QPainter>
#include <algorithm>
#include <cmath>

namespace velmora {

namespace {

bool isDigit(QChar character) {
    return character >= u'0' && character <= u'9';
}

// Latin letters, digits, punctuation and spaces: a glyph each, side by side.
bool isPlain(QChar character) {
    return (character >= u' ' && character <= u'\u024F') || character == u'\u202F';
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
    face_ = QRawFont::fromFont(font_);
    const auto digits = face_.glyphIndexesForString(QStringLiteral("0123456789"));
    digitWidth_ = 0;
    for (const QPointF& advance : face_.advancesForGlyphIndexes(digits))
        digitWidth_ = std::max(digitWidth_, advance.x());
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
    glyphs_.clear();
    const QList<quint32> indexes = face_.glyphIndexesForString(text_);
    if (!std::ranges::all_of(text_, isPlain) || indexes.size() != text_.size() ||
        indexes.contains(0U))
        return std::nullopt;
    const QList<QPointF> advances = face_.advancesForGlyphIndexes(indexes);
    QList<QPointF> places;
    double x = 0;
    for (qsizetype place = 0; place < text_.size(); ++place) {
        const double width = advances[place].x();
        const double room = isDigit(text_[place]) ? digitWidth_ : width;
        places.append({x + ((room - width) / 2), 0});
        x += room;
    }
    glyphs_.setRawFont(face_);
    glyphs_.setGlyphIndexes(indexes);
    glyphs_.setPositions(places);
    return x;
}

void FixedDigits::paint(QPainter* painter) {
    painter->setPen(color_);
    if (!glyphs_.isEmpty())
        return painter->drawGlyphRun({0, baselineOffset()}, glyphs_);
    painter->setFont(font_);
    painter->drawText(QPointF(0, baselineOffset()), text_);
}

}  // namespace velmora
