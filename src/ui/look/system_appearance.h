#pragma once

#include <QtQml/qqmlregistration.h>
#include <QColor>
#include <QObject>

namespace velmora {

/// Tells the theme the font of the application, whether the desktop shows light or dark windows and
/// when that changes, and whether things move.
class SystemAppearance final : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON
    Q_PROPERTY(bool dark READ dark NOTIFY darkChanged)
    Q_PROPERTY(bool animated READ animated NOTIFY motionChanged)
    Q_PROPERTY(bool reducesMotion READ reducesMotion NOTIFY motionChanged)
    Q_PROPERTY(QColor accent READ accent NOTIFY accentChanged)
    Q_PROPERTY(QString fontFamily READ fontFamily CONSTANT)

  public:
    explicit SystemAppearance(QObject* parent = nullptr);

    /// True when the application's palette writes light text on a darker window.
    [[nodiscard]] bool dark() const { return dark_; }
    [[nodiscard]] QString fontFamily() const;
    /// Whether what changes in the window glides there.
    [[nodiscard]] bool animated() const { return animated_ && !reducesMotion_; }
    /// Whether the user asked that as little as possible moves, drawings included.
    [[nodiscard]] bool reducesMotion() const { return reducesMotion_; }
    void setMotion(bool animated, bool reduced);
    /// The user's own colour for what is chosen or pressed; invalid where they have none.
    [[nodiscard]] QColor accent() const { return accent_; }
    void setAccent(const QColor& accent);

    bool eventFilter(QObject* watched, QEvent* event) override;

  Q_SIGNALS:
    void darkChanged();
    void motionChanged();
    void accentChanged();

  private:
    bool dark_;
    bool animated_ = true;
    bool reducesMotion_ = false;
    QColor accent_;
};

}  // namespace velmora
