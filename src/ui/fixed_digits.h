#pragma once

#include <QtQml/qqmlregistration.h>
#include <QColor>
#include <QQuickPaintedItem>
#include <QString>

namespace velmora {

/// One line of text whose digits all take the same width, so that numbers stand under each other
/// and don't jump while they count. One item however long the text: a row of single characters
/// would slow the list down.
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
    void setPixelSize(int pixelSize);

    void paint(QPainter* painter) override;

  Q_SIGNALS:
    void textChanged();
    void colorChanged();
    void fontChanged();

  private:
    void useFont(const QFont& font);
    void measure();

    QString text_;
    QColor color_;
    QFont font_;
    double digitWidth_ = 0;
};

}  // namespace velmora
