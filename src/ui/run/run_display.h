#pragma once

#include <QObject>
#include <QString>
#include <QtQmlIntegration>

#include "sending/runner.h"
#include "storage/app_config.h"
#include "ui/look/tone.h"

namespace velmora {

/// What a row of the activity shows of one text.
struct ActivityEntry {
    Q_GADGET
    QML_VALUE_TYPE(activityEntry)
    Q_PROPERTY(QString name MEMBER name)
    Q_PROPERTY(QString symbol MEMBER symbol)
    Q_PROPERTY(velmora::look::Tone tone MEMBER tone)
    Q_PROPERTY(QString details MEMBER details)
    Q_PROPERTY(QString clockTime MEMBER clockTime)

  public:
    QString name;    ///< whom it was for
    QString symbol;  ///< of its status
    Tone tone = Tone::primary;
    QString details;    ///< status, service and detail in words, as far as there are any
    QString clockTime;  ///< on a clock in the user's place and language

    friend bool operator==(const ActivityEntry&, const ActivityEntry&) = default;
};

// What the views say of a run, before, while and after it goes. Pure functions.

/// How many of the run are done, what it does right now, and its message; empty when there is
/// nothing to say.
[[nodiscard]] QString statusLine(const Runner& runner);

/// The send button's title when `people` are checked.
[[nodiscard]] QString sendTitle(qsizetype people);

/// The confirm sheet's question when `people` are checked.
[[nodiscard]] QString confirmTitle(qsizetype people);

/// How far apart the texts will be: whole seconds, cut toward zero. A delay that is not finite or
/// does not fit into 64 bits is written with its decimals or exponent, or as "inf" or "nan".
[[nodiscard]] QString paceLine(const AppConfig& config);

/// One line of the send log.
[[nodiscard]] ActivityEntry activityEntry(const LogEntry& entry);

}  // namespace velmora
