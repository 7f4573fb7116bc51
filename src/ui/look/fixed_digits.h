#pragma once

#include <QtQml/qqmlregistration.h>
#include <QColor>
#include <QPointF>
#include <QQuickPaintedItem>
#include <QString>
#include <optional>

namespace velmora {

/// One line of text whose digits 0 to 9 all take the same width, so that numbers stand under each
/// other and don't jump while they count. Text that takes more than a glyph for each character,
/// from left to right, is written as usual. One item however long the text: a row of single
/// characters would slow the list down.
class FixedDigits : public QQuickPaintedItem {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QString text READ text WRITE setText NOTIFY textChanged)
    Q_PROPERTY(QColor color READ color WRITE setColor NOTIFY colorChanged)
    Q_PROPERTY(QString fontFamily READ fontFamily WRITE setFontFamily NOTIFY fontChanged)
    Q_PROPERTY(int pixelSize READ pixelSize WRITE setPixelSize NOTIFY fontChanged)

  public:
    explicit FixedDigits(QQuickItem* parent = nullptr);

    [[nodiscard]] QString text() const { return text_; }
    void setText(const QString& text);
    [[nodiscard]] QColor color() const { return color_; }
    void setColor(const QColor& color);
    [[nodiscard]] QString fontFamily() const { return font_.family(); }
    void setFontFamily(const QString& family);
    [[nodiscard]] int pixelSize() const { return font_.pixelSize(); }
    /// At least 1.
    void setPixelSize(int pixelSize);

    void paint(QPainter* painter) override;

  Q_SIGNALS:
    void textChanged();
    void colorChanged();
    void fontChanged();

  private:
    void useFont(const QFont& font);
    void measure();
    /// Places the glyphs and gives their width; nothing for text that is written as usual.
    [[nodiscard]] std::optional<double> placeGlyphs();

    QString text_;
    QColor color_;
    QFont font_;
    // What stands where; no places for text that is written as usual. The face belongs to one
    // thread, and is asked for anew on the one that draws.
    QList<quint32> glyphs_;
    QList<QPointF> places_;
};

}  // namespace velmora
