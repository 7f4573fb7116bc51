#pragma once

#include <QObject>
#include <QtQmlIntegration>

#include "app/app_model.h"

namespace velmora {

/// What the sheet before a run shows: to how many, an example, from which number, how fast and
/// under which name.
class ConfirmModel final : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Belongs to the presentation")
    Q_PROPERTY(QString title READ title NOTIFY changed)
    Q_PROPERTY(QString exampleCaption READ exampleCaption NOTIFY changed)
    Q_PROPERTY(QString exampleText READ exampleText NOTIFY changed)
    Q_PROPERTY(QString from READ from NOTIFY changed)
    Q_PROPERTY(QString pace READ pace NOTIFY changed)
    Q_PROPERTY(QString runName READ runName NOTIFY runNameChanged)

  public:
    explicit ConfirmModel(AppModel& model);

    [[nodiscard]] QString title() const;
    /// Both empty when none of the checked people can be sent to.
    [[nodiscard]] QString exampleCaption() const;
    [[nodiscard]] QString exampleText() const;
    [[nodiscard]] QString from() const;
    [[nodiscard]] QString pace() const;
    [[nodiscard]] QString runName() const;

    Q_INVOKABLE void setRunName(const QString& name);
    Q_INVOKABLE void cancel();
    Q_INVOKABLE void startSending();

  Q_SIGNALS:
    /// Announced while a run is to be confirmed: the sheet keeps its words while it leaves.
    void changed();
    void runNameChanged();

  private:
    void follow();

    AppModel& model_;
};

}  // namespace velmora
