#pragma once

#include <QObject>
#include <QtQmlIntegration>

#include "app/app_model.h"
#include "ui/controls/double_click.h"

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
    /// `model` outlives it.
    explicit ConfirmModel(AppModel& model);

    /// The question, with the number of checked people.
    [[nodiscard]] QString title() const;
    /// Whose text the example is, and the text; both empty when none of the checked people can be
    /// sent to.
    [[nodiscard]] QString exampleCaption() const;
    [[nodiscard]] QString exampleText() const;
    /// The sending number as a person reads it.
    [[nodiscard]] QString from() const;
    /// How far apart the texts will be.
    [[nodiscard]] QString pace() const;
    /// The name that the run's log goes by.
    [[nodiscard]] QString runName() const;

    /// Takes the name as typed; `startSending` looks who was already sent to under it.
    Q_INVOKABLE void setRunName(const QString& name);
    /// Closes the sheet; nothing is sent.
    Q_INVOKABLE void cancel();
    /// Closes the sheet and starts the run, or has the alert say why it does not start. Does
    /// nothing when no run is to be confirmed, and nothing for the length of a double click after
    /// there is one: the second click on the send button starts nothing unread.
    Q_INVOKABLE void startSending();

  Q_SIGNALS:
    /// Announced while a run is to be confirmed: the sheet keeps its words while it leaves.
    void changed();
    void runNameChanged();

  private:
    void follow();

    AppModel& model_;
    DoubleClick opening_;
};

}  // namespace velmora
