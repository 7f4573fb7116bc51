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

/// Calls `visit` with each digit, and with each run of other characters, from left to right.
template <typename Visit>
void forEachPiece(const QString& text, Visit visit) {
    const QStringView all(text);
    for (qsizetype start = 0; start < all.size();) {
        qsizetype end = start + 1;
        while (!isDigit(all[start]) && end < all.size() && !isDigit(all[end]))
            ++end;
        visit(all.sliced(start, end - start).toString(), isDigit(all[start]));
        start = end;
    }
}

}  // namespace

FixedDigits::FixedDigits(QQuickItem* parent) : QQuickPaintedItem(parent) {
    measure();
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
    useFont(font);
}

void FixedDigits::setPixelSize(int pixelSize) {
    QFont font(font_);
    font.setPixelSize(std::max(1, pixelSize));
    useFont(font);
}

void FixedDigits::useFont(const QFont& font) {
    if (font == font_)
        return;
    font_ = font;
    measure();
    Q_EMIT fontChanged();
}

void FixedDigits::measure() {
    const QFontMetricsF metrics(font_);
    digitWidth_ = 0;
    for (char16_t digit = u'0'; digit <= u'9'; ++digit)
        digitWidth_ = std::max(digitWidth_, metrics.horizontalAdvance(QChar(digit)));
    double width = 0;
    forEachPiece(text_, [&](const QString& piece, bool digit) {
        width += digit ? digitWidth_ : metrics.horizontalAdvance(piece);
    });
    // Whole pixels, as the toolkit's own texts have them: the picture is then never drawn between
    // two.
    setImplicitSize(std::ceil(width), std::ceil(metrics.height()));
    setBaselineOffset(std::ceil(metrics.ascent()));
    update();
}

void FixedDigits::paint(QPainter* painter) {
    const QFontMetricsF metrics(font_);
    painter->setFont(font_);
    painter->setPen(color_);
    double x = 0;
    forEachPiece(text_, [&](const QString& piece, bool digit) {
        const double width = metrics.horizontalAdvance(piece);
        const double room = digit ? digitWidth_ : width;
        painter->drawText(QPointF(x + ((room - width) / 2), baselineOffset()), piece);
        x += room;
    });
}

}  // namespace velmora
