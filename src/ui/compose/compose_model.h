#pragma once

#include <QObject>
#include <QString>
#include <QVariantList>
#include <QtQmlIntegration>

#include "app/app_model.h"

namespace velmora {

/// What the composer shows and does: the message and the number to send from. All of it is read
/// from the application model at each look.
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
    Q_PROPERTY(int senderIndex READ senderIndex NOTIFY senderChanged)
    Q_PROPERTY(bool locked READ locked NOTIFY lockedChanged)

  public:
    /// `model` outlives it.
    explicit ComposeModel(AppModel& model);

    /// Whether there is a list to write to; else the column says so.
    [[nodiscard]] bool showsComposer() const;
    /// The chosen list's message as it is stored.
    [[nodiscard]] QString message() const;
    /// What the message belongs to: the chosen list, empty without one. It is announced after the
    /// message.
    [[nodiscard]] QString subject() const;
    /// The note under the message: who gets which version once there are several, before that what
    /// the "Insert" menu brings.
    [[nodiscard]] QString hint() const;
    /// Entries for a menu button; `insert` takes the chosen one's place.
    [[nodiscard]] static QVariantList insertEntries();
    /// The chosen number as a person reads it, or the request to choose one.
    [[nodiscard]] QString senderTitle() const;
    /// All numbers to send from, or that there is none; `chooseSender` takes the chosen one's
    /// place.
    [[nodiscard]] QVariantList senderEntries() const;
    /// The place of the chosen number; -1 when it is not among them.
    [[nodiscard]] int senderIndex() const;

    /// True during a run, which keeps its message and its number.
    [[nodiscard]] bool locked() const;

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

  Q_SIGNALS:
    void messageChanged();
    void subjectChanged();
    void senderChanged();
    void lockedChanged();

  private:
    void followConfig();

    AppModel& model_;
    QString senderNumber_;  // what the views were last told, as is the subject
    QString subject_;
};

}  // namespace velmora
