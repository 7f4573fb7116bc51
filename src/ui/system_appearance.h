#pragma once

#include <QtQml/qqmlregistration.h>
#include <QObject>

namespace velmora {

/// Tells the theme the font of the application, and whether the desktop shows light or dark windows
/// and when that changes.
class SystemAppearance final : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON
    Q_PROPERTY(bool dark READ dark NOTIFY darkChanged)
    Q_PROPERTY(QString fontFamily READ fontFamily CONSTANT)

  public:
    explicit SystemAppearance(QObject* parent = nullptr);

    /// True when the application's palette writes light text on a darker window.
    [[nodiscard]] bool dark() const { return dark_; }
    [[nodiscard]] QString fontFamily() const;

    bool eventFilter(QObject* watched, QEvent* event) override;

  Q_SIGNALS:
    void darkChanged();

  private:
    bool dark_;
};

}  // namespace velmora
