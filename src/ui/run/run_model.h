#pragma once

#include <QObject>
#include <QString>
#include <QtQmlIntegration>

#include "app/app_model.h"
#include "ui/controls/double_click.h"

namespace velmora {

/// What starts a run, steers it and says how it stands. All of it is read from the application
/// model and its runner at each look.
class RunModel final : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Belongs to the presentation")
    Q_PROPERTY(Stage stage READ stage NOTIFY stageChanged)
    Q_PROPERTY(QString sendTitle READ sendTitle NOTIFY sendChanged)
    Q_PROPERTY(bool canSend READ canSend NOTIFY sendChanged)
    Q_PROPERTY(QString status READ status NOTIFY statusChanged)
    Q_PROPERTY(double progress READ progress NOTIFY statusChanged)
    Q_PROPERTY(double progressTotal READ progressTotal NOTIFY statusChanged)
    Q_PROPERTY(bool showsActivity READ showsActivity NOTIFY activityChanged)

  public:
    /// What the send section offers.
    enum class Stage { ready, running, paused, stopping };
    Q_ENUM(Stage)

    /// `model` outlives it.
    explicit RunModel(AppModel& model);

    [[nodiscard]] Stage stage() const;
    /// The send button's title, with the number of checked people.
    [[nodiscard]] QString sendTitle() const;
    /// Whether anyone is checked.
    [[nodiscard]] bool canSend() const;
    /// How the run stands, in words; empty when there is nothing to say.
    [[nodiscard]] QString status() const;
    /// How many of the run's people are done, of `progressTotal`.
    [[nodiscard]] double progress() const;
    /// At least 1.
    [[nodiscard]] double progressTotal() const;
    /// Whether the log has a line.
    [[nodiscard]] bool showsActivity() const;

    /// At the event loop's next turn, asks for the run to be confirmed, or has the alert say why it
    /// cannot be. Does nothing during a run and before the terms are accepted.
    Q_INVOKABLE void requestRun();
    /// Ends the active run after the text in hand. Does nothing for the length of a double click
    /// after `resume`: the button has just grown under the pointer.
    Q_INVOKABLE void stop();
    /// Lets a paused run go on.
    Q_INVOKABLE void resume();

  Q_SIGNALS:
    void stageChanged();
    void sendChanged();
    void statusChanged();
    void activityChanged();

  private:
    AppModel& model_;
    DoubleClick resuming_;
};

}  // namespace velmora
