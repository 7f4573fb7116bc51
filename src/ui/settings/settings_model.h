#pragma once

#include <qcoro/qcorotask.h>

#include <QObject>
#include <QString>
#include <QStringList>
#include <QtQmlIntegration>
#include <functional>
#include <optional>

#include "app/app_model.h"

namespace velmora {

/// What the settings window shows and changes: the sending number, the pacing and the test message.
class SettingsModel final : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Belongs to the presentation")
    Q_PROPERTY(bool locked READ locked NOTIFY changed)
    Q_PROPERTY(QStringList senderOptions READ senderOptions NOTIFY senderChanged)
    Q_PROPERTY(int senderIndex READ senderIndex NOTIFY senderChanged)
    Q_PROPERTY(bool numbersMissing READ numbersMissing NOTIFY senderChanged)
    Q_PROPERTY(double delayMin READ delayMin WRITE setDelayMin NOTIFY changed)
    Q_PROPERTY(double delayMax READ delayMax WRITE setDelayMax NOTIFY changed)
    Q_PROPERTY(int startHour READ startHour NOTIFY changed)
    Q_PROPERTY(int startMinute READ startMinute NOTIFY changed)
    Q_PROPERTY(int endHour READ endHour NOTIFY changed)
    Q_PROPERTY(int endMinute READ endMinute NOTIFY changed)
    Q_PROPERTY(int maxFailures READ maxFailures WRITE setMaxFailures NOTIFY changed)
    Q_PROPERTY(int fewestFailures READ fewestFailures CONSTANT)
    Q_PROPERTY(int mostFailures READ mostFailures CONSTANT)
    Q_PROPERTY(QString failuresText READ failuresText NOTIFY changed)
    Q_PROPERTY(QString testPhone READ testPhone WRITE setTestPhone NOTIFY changed)
    Q_PROPERTY(bool canSendTest READ canSendTest NOTIFY changed)
    Q_PROPERTY(QString testResult READ testResult NOTIFY changed)

  public:
    /// `model` outlives it.
    explicit SettingsModel(AppModel& model);

    /// Whether number and pacing are locked, as they are during a run. While they are, the
    /// operations that change them do nothing.
    [[nodiscard]] bool locked() const;

    /// What the user can choose to send from: nothing yet, each number with its count of messages,
    /// and the chosen number when this computer does not have it any more.
    [[nodiscard]] QStringList senderOptions() const;
    /// The chosen one of the options.
    [[nodiscard]] int senderIndex() const;
    /// Sends from the option at `index` from now on, the first standing for no number, and checks
    /// the list against it. Does nothing where there is no such option.
    Q_INVOKABLE void chooseSender(int index);
    /// Whether this computer has no number to send from.
    [[nodiscard]] bool numbersMissing() const;

    /// The ends of the wait between two texts, seconds.
    [[nodiscard]] double delayMin() const;
    void setDelayMin(double seconds);
    [[nodiscard]] double delayMax() const;
    void setDelayMax(double seconds);

    /// The ends of the sending hours; an unreadable one is 10:00.
    [[nodiscard]] int startHour() const;
    [[nodiscard]] int startMinute() const;
    [[nodiscard]] int endHour() const;
    [[nodiscard]] int endMinute() const;
    /// Store an end: `hour` from 0 to 23, `minute` from 0 to 59.
    Q_INVOKABLE void setStart(int hour, int minute);
    Q_INVOKABLE void setEnd(int hour, int minute);

    [[nodiscard]] int maxFailures() const;
    /// Stores the nearest number from `fewestFailures` to `mostFailures`.
    void setMaxFailures(int count);
    [[nodiscard]] static int fewestFailures() { return 1; }
    [[nodiscard]] static int mostFailures() { return 10; }
    /// The sentence around `maxFailures`, as it is stored.
    [[nodiscard]] QString failuresText() const;

    [[nodiscard]] QString testPhone() const;
    /// Takes the number as typed, also during a run; whether it is one shows when the test is sent.
    void setTestPhone(const QString& typed);
    /// Whether there is a number to send it to and neither a run nor a test under way.
    [[nodiscard]] bool canSendTest() const;
    /// Sends the test text, when that can be done.
    Q_INVOKABLE void sendTest();
    /// How the last test stands, in a sentence; empty before the first one.
    [[nodiscard]] QString testResult() const;

  Q_SIGNALS:
    void changed();
    void senderChanged();

  private:
    void followConfig();
    void edit(const std::function<void(AppConfig&)>& change);
    void setTime(QuietField field, int hour, int minute);
    [[nodiscard]] QStringList senderValues() const;

    AppModel& model_;
    QString senderNumber_;  // what the views were last told
    std::optional<QCoro::Task<>> test_;
};

}  // namespace velmora
