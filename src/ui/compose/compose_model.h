#pragma once

#include <QObject>
#include <QStringList>
#include <QVariantList>
#include <QtQmlIntegration>

#include "app/app_model.h"
#include "ui/controls/double_click.h"

namespace velmora {

/// What the composer shows and does: the message, the number to send from, and the run. All of it
/// is read from the application model and its runner at each look.
class ComposeModel final : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Belongs to the presentation")
    Q_PROPERTY(bool showsComposer READ showsComposer NOTIFY messageChanged)
    Q_PROPERTY(QString message READ message NOTIFY messageChanged)
    Q_PROPERTY(QString subject READ subject NOTIFY subjectChanged)
    Q_PROPERTY(QString hint READ hint NOTIFY messageChanged)
    Q_PROPERTY(QVariantList insertEntries READ insertEntries CONSTANT)
    Q_PROPERTY(QString senderTitle READ senderTitle NOTIFY senderChanged)
    Q_PROPERTY(QStringList senderEntries READ senderEntries NOTIFY senderChanged)
    Q_PROPERTY(int senderIndex READ senderIndex NOTIFY senderChanged)
    Q_PROPERTY(bool locked READ locked NOTIFY stageChanged)
    Q_PROPERTY(Stage stage READ stage NOTIFY stageChanged)
    Q_PROPERTY(QString sendTitle READ sendTitle NOTIFY sendChanged)
    Q_PROPERTY(bool canSend READ canSend NOTIFY sendChanged)
    Q_PROPERTY(bool showsStatus READ showsStatus NOTIFY statusChanged)
    Q_PROPERTY(QString status READ status NOTIFY statusChanged)
    Q_PROPERTY(double progress READ progress NOTIFY statusChanged)
    Q_PROPERTY(double progressTotal READ progressTotal NOTIFY statusChanged)
    Q_PROPERTY(bool showsActivity READ showsActivity NOTIFY activityChanged)

  public:
    /// What the send section offers.
    enum class Stage { ready, running, paused, stopping };
    Q_ENUM(Stage)

    /// `model` outlives it.
    explicit ComposeModel(AppModel& model);

    /// Whether there is a list to write to; else the column says so.
    [[nodiscard]] bool showsComposer() const;
    /// The chosen list's message as it is stored.
    [[nodiscard]] QString message() const;
    /// What the message belongs to: the chosen list, empty without one. It is announced after the
    /// message.
    [[nodiscard]] QString subject() const;
    /// The note under the message, which speaks of its versions or of the "Insert" menu.
    [[nodiscard]] QString hint() const;
    /// Entries for a menu button; `insert` takes the chosen one's place.
    [[nodiscard]] static QVariantList insertEntries();
    /// The chosen number as a person reads it, or the request to choose one.
    [[nodiscard]] QString senderTitle() const;
    /// All numbers to send from; `chooseSender` takes the chosen one's place.
    [[nodiscard]] QStringList senderEntries() const;
    /// The place of the chosen number; -1 when it is not among them.
    [[nodiscard]] int senderIndex() const;

    /// True during a run, which keeps its message and its number.
    [[nodiscard]] bool locked() const;
    [[nodiscard]] Stage stage() const;
    /// The send button's title, with the number of checked people.
    [[nodiscard]] QString sendTitle() const;
    /// Whether anyone is checked.
    [[nodiscard]] bool canSend() const;
    /// Whether there is room for the status, which may still be empty.
    [[nodiscard]] bool showsStatus() const;
    /// How the run stands, in words; empty when there is nothing to say.
    [[nodiscard]] QString status() const;
    /// How many of the run's people are done, of `progressTotal`.
    [[nodiscard]] double progress() const;
    /// At least 1.
    [[nodiscard]] double progressTotal() const;
    /// Whether the log has a line.
    [[nodiscard]] bool showsActivity() const;

    /// Stores the message as typed and renders everyone's text again. Does nothing during a run or
    /// without a list.
    Q_INVOKABLE void setMessage(const QString& text);
    /// Adds what the entry at `place` stands for at the message's end, wherever the caret is. Does
    /// nothing during a run, without a list, for the line between the entries, or where there is no
    /// such entry.
    Q_INVOKABLE void insert(int place);
    /// Sends from the number at `place` from now on and checks the list against it. Does nothing
    /// during a run or where there is no such number.
    Q_INVOKABLE void chooseSender(int place);
    /// At the event loop's next turn, asks for the run to be confirmed, or has the alert say why it
    /// cannot be. Does nothing during a run and before the terms are accepted.
    Q_INVOKABLE void requestRun();
    /// Ends the active run after the text in hand. Does nothing for the length of a double click
    /// after `resume`: the button has just grown under the pointer.
    Q_INVOKABLE void stop();
    /// Lets a paused run go on.
    Q_INVOKABLE void resume();

  Q_SIGNALS:
    void messageChanged();
    void subjectChanged();
    void senderChanged();
    void stageChanged();
    void sendChanged();
    void statusChanged();
    void activityChanged();

  private:
    void followConfig();

    AppModel& model_;
    DoubleClick resuming_;
    QString senderNumber_;  // what the views were last told, as is the subject
    QString subject_;
};

}  // namespace velmora
