#pragma once

#include <QObject>
#include <QString>
#include <QtQmlIntegration>

#include "ui/controls/whole_numbers.h"

namespace velmora {

/// What an `AlertBox` says, and its buttons. Without an action there is only the one that lets the
/// alert go, which the Return and the cancel key press.
struct AlertContent {
    Q_GADGET
    QML_VALUE_TYPE(alertContent)
    Q_PROPERTY(QString title MEMBER title)
    Q_PROPERTY(QString message MEMBER message)
    Q_PROPERTY(QString action MEMBER action)
    Q_PROPERTY(QString dismissal MEMBER dismissal)

  public:
    QString title;
    QString message;
    QString action = {};
    QString dismissal;

    /// An alert of Velmora's that only tells something.
    [[nodiscard]] static AlertContent saying(const QString& sentence) {
        return {.title = QStringLiteral("Velmora"),
                .message = withWholeNumbers(sentence),
                .dismissal = QStringLiteral("OK")};
    }

    friend bool operator==(const AlertContent&, const AlertContent&) = default;
};

}  // namespace velmora
