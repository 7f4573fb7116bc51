#pragma once

#include <QObject>
#include <QString>
#include <QtQmlIntegration>

namespace velmora {

/// What an `EmptyState` says. Without a text there is no button.
struct EmptyStateContent {
    Q_GADGET
    QML_VALUE_TYPE(emptyStateContent)
    Q_PROPERTY(QString icon MEMBER icon)
    Q_PROPERTY(QString title MEMBER title)
    Q_PROPERTY(QString message MEMBER message)
    Q_PROPERTY(QString button MEMBER button)

  public:
    QString icon;
    QString title;
    QString message;
    QString button = {};

    friend bool operator==(const EmptyStateContent&, const EmptyStateContent&) = default;
};

}  // namespace velmora
