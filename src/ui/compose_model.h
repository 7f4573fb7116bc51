#pragma once

#include <QObject>
#include <QVariantList>
#include <QtQmlIntegration>

#include "app/app_model.h"

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
    Q_PROPERTY(QVariantList senderEntries READ senderEntries NOTIFY senderChanged)
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

    explicit ComposeModel(AppModel& model);

    /// Whether there is a list to write to; else the column says so.
    [[nodiscard]] bool showsComposer() const;
    [[nodiscard]] QString message() const;
    /// What the message belongs to: the chosen list, empty without one. It is announced after the
    /// message.
    [[nodiscard]] QString subject() const;
    [[nodiscard]] QString hint() const;
    /// Entries for a menu button; `insert` takes the chosen one's place.
    [[nodiscard]] static QVariantList insertEntries();
    /// The number to send from, and an entry for each that there is.
    [[nodiscard]] QString senderTitle() const;
    [[nodiscard]] QVariantList senderEntries() const;

    /// True during a run, which keeps its message and its number.
    [[nodiscard]] bool locked() const;
    [[nodiscard]] Stage stage() const;
    [[nodiscard]] QString sendTitle() const;
    [[nodiscard]] bool canSend() const;
    [[nodiscard]] bool showsStatus() const;
    [[nodiscard]] QString status() const;
    [[nodiscard]] double progress() const;
    /// At least 1.
    [[nodiscard]] double progressTotal() const;
    [[nodiscard]] bool showsActivity() const;

    Q_INVOKABLE void setMessage(const QString& text);
    /// Adds what the entry at `place` stands for at the message's end.
    Q_INVOKABLE void insert(int place);
    Q_INVOKABLE void chooseSender(int place);
    Q_INVOKABLE void requestRun();
    Q_INVOKABLE void stop();
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
    QString senderNumber_;  // what the views were last told, as is the subject
    QString subject_;
};

}  // namespace velmora
