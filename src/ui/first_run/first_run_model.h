#pragma once

#include <QObject>
#include <QString>
#include <QStringList>
#include <QtQmlIntegration>

#include "app/app_model.h"

namespace velmora {

/// What the sheets of the first use show and do: the terms, the Full Disk Access help and the
/// choice of a sending number.
class FirstRunModel final : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Belongs to the presentation")
    Q_PROPERTY(bool numbersFound READ numbersFound NOTIFY changed)
    Q_PROPERTY(QStringList numbers READ numbers NOTIFY changed)
    Q_PROPERTY(QString senderText READ senderText NOTIFY changed)
    Q_PROPERTY(QString checkedText READ checkedText NOTIFY changed)

  public:
    /// `model` outlives it.
    explicit FirstRunModel(AppModel& model);

    /// Opens the terms in the browser; without one, nothing happens.
    Q_INVOKABLE void openTerms();
    /// Stores that the terms are accepted, and since when; nothing when they already are.
    Q_INVOKABLE void acceptTerms();
    /// Ends the application without saving anything.
    Q_INVOKABLE void quit();

    [[nodiscard]] bool numbersFound() const;
    /// The sending numbers as a person reads them, the busiest first.
    [[nodiscard]] QStringList numbers() const;
    /// What the user is asked to do about the sending number.
    [[nodiscard]] QString senderText() const;
    /// When the numbers were last looked for in vain; empty before the first look and once there
    /// are numbers.
    [[nodiscard]] QString checkedText() const;
    /// Sends from the number at `index` from now on and checks the list against it. Does nothing
    /// during a run or where there is no such number.
    Q_INVOKABLE void chooseNumber(int index);
    /// Puts the choice off until the application starts again.
    Q_INVOKABLE void chooseLater();
    /// Starts Messages or brings it forward; nothing happens where it cannot be found.
    Q_INVOKABLE void openMessages();
    /// Looks for the sending numbers, and with them whether the history can be read, again.
    Q_INVOKABLE void checkAgain();

    /// Where the loop of the animation stands now, in seconds from 0 to 7.
    Q_INVOKABLE [[nodiscard]] double animationTime() const;
    /// Opens the system's settings at Full Disk Access.
    Q_INVOKABLE void openSystemSettings();
    /// Puts the Full Disk Access help off until the application starts again.
    Q_INVOKABLE void notNow();

  Q_SIGNALS:
    /// Announced while the choice of a number is to be made: the sheet keeps its words while it
    /// leaves.
    void changed();

  private:
    void follow();

    AppModel& model_;
};

}  // namespace velmora
