#pragma once

#include <QtQml/qqmlregistration.h>
#include <QObject>
#include <optional>

namespace velmora {

/// What the parts of a time picker show and what keys do to them: hours, minutes and, where the
/// user's language counts to twelve, the half of the day.
class ClockFields : public QObject {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(int hour READ hour WRITE setHour NOTIFY changed)
    Q_PROPERTY(int minute READ minute WRITE setMinute NOTIFY changed)
    Q_PROPERTY(bool halfFirst READ halfFirst CONSTANT)
    Q_PROPERTY(bool halfLast READ halfLast CONSTANT)
    Q_PROPERTY(QString separator READ separator CONSTANT)
    Q_PROPERTY(QString hourText READ hourText NOTIFY changed)
    Q_PROPERTY(QString minuteText READ minuteText NOTIFY changed)
    Q_PROPERTY(QString halfText READ halfText NOTIFY changed)

  public:
    explicit ClockFields(QObject* parent = nullptr);

    /// 0 to 23, as it was set last.
    [[nodiscard]] int hour() const { return hour_; }
    void setHour(int hour);
    /// 0 to 59, as it was set last.
    [[nodiscard]] int minute() const { return minute_; }
    void setMinute(int minute);

    /// Whether the half of the day stands before the hours, or after the minutes. Neither where the
    /// language counts to twenty-four.
    [[nodiscard]] bool halfFirst() const { return twelveHour_ && halfFirst_; }
    [[nodiscard]] bool halfLast() const { return twelveHour_ && !halfFirst_; }
    /// What stands between hours and minutes.
    [[nodiscard]] QString separator() const { return separator_; }
    [[nodiscard]] QString hourText() const;
    [[nodiscard]] QString minuteText() const;
    [[nodiscard]] QString halfText() const;

    /// Ask for the time `delta` steps on; hours and minutes wrap, each on its own.
    Q_INVOKABLE void stepHour(int delta);
    Q_INVOKABLE void stepMinute(int delta);
    Q_INVOKABLE void stepHalf(int delta);
    /// Take a typed character; false when it means nothing there. Two digits typed one after the
    /// other make one number.
    Q_INVOKABLE bool typeHour(const QString& character);
    Q_INVOKABLE bool typeMinute(const QString& character);
    Q_INVOKABLE bool typeHalf(const QString& character);
    /// The next digit begins a new number.
    Q_INVOKABLE void endTyping() { pending_.reset(); }

  Q_SIGNALS:
    void changed();
    /// The user asks for this time. The fields show it once it is set.
    void picked(int hour, int minute);

  private:
    [[nodiscard]] std::optional<int> typed(const QString& character, int most);
    [[nodiscard]] int fromTwelve(int shown) const;

    int hour_ = 0;
    int minute_ = 0;
    bool twelveHour_ = false;
    bool halfFirst_ = false;
    QString separator_;
    std::optional<int> pending_;
};

}  // namespace velmora
