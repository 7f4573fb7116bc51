#pragma once

#include <QtQml/qqmlregistration.h>
#include <QObject>

namespace velmora {

/// Tells the theme the font of the application, whether the desktop shows light or dark windows and
/// when that changes, and whether things move.
class SystemAppearance final : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON
    Q_PROPERTY(bool dark READ dark NOTIFY darkChanged)
    Q_PROPERTY(bool animated READ animated NOTIFY animatedChanged)
    Q_PROPERTY(QString fontFamily READ fontFamily CONSTANT)

  public:
    explicit SystemAppearance(QObject* parent = nullptr);

    /// True when the application's palette writes light text on a darker window.
    [[nodiscard]] bool dark() const { return dark_; }
    [[nodiscard]] QString fontFamily() const;
    [[nodiscard]] bool animated() const { return animated_; }
    void setAnimated(bool animated);

    bool eventFilter(QObject* watched, QEvent* event) override;

  Q_SIGNALS:
    void darkChanged();
    void animatedChanged();

  private:
    bool dark_;
    bool animated_ = true;
};

}  // namespace velmora
