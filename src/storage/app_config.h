#pragma once

#include <QHash>
#include <QMap>
#include <QString>
#include <QStringList>
#include <optional>

#include "core/moment.h"

namespace velmora {

using namespace Qt::StringLiterals;

/// The version of the terms of use that counts as accepted.
inline const QString currentTermsVersion = u"1"_s;

/// All of the user's settings and working data, stored as one JSON file whose keys are the field
/// names.
struct AppConfig {
    QString senderNumber;   ///< the user's own number that texts leave from; empty until chosen
    double delayMin = 30;   ///< one end of the random wait between two sends, seconds
    double delayMax = 60;   ///< the other end, seconds; the two may stand in either order
    qint64 maxPerRun = 60;  ///< the most people that one run may send to
    QString quietStart = u"10:00"_s;  ///< start of the daily sending hours
    QString quietEnd = u"20:00"_s;    ///< end of the daily sending hours, still inside
    qint64 maxFailures = 3;           ///< failed sends in a row after which a run pauses
    double verifyWait = 20;  ///< how long to wait for the history to confirm a send, seconds
    std::optional<QString> selectedGroupID;  ///< the list shown in the main window
    QMap<QString, QString> templates;        ///< message template by list id
    QMap<QString, QString> notes;            ///< personal note by Recipient::id
    QMap<QString, QStringList> picks;        ///< ids of the people checked, by list id
    QString termsAccepted;                   ///< version of the terms that the user accepted
    std::optional<Moment> termsAcceptedAt;

    friend bool operator==(const AppConfig&, const AppConfig&) = default;
};

/// Minutes since midnight of a text of hours and minutes such as "10:00", without a range check
/// (25:99 gives 1599). Empty pieces between colons and pieces that are no integers are dropped;
/// nothing unless exactly two integers remain.
[[nodiscard]] std::optional<qint64> minutesOfDay(const QString& text);

/// True when `moment`'s hour and minute, in the user's time zone, lie outside the sending hours.
/// Both ends are inside; an end before the start means hours across midnight; unreadable times are
/// never outside.
[[nodiscard]] bool isOutsideSendingHours(const AppConfig& config, Moment moment);

}  // namespace velmora
