#pragma once

#include <QtQml/qqmlregistration.h>
#include <QQuickItem>

namespace velmora {

/// Makes a screen reader speak up for what has come onto the screen.
class Announcer final : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON

  public:
    using QObject::QObject;

    /// Announces `item` as an alert, by its accessible name and description.
    Q_INVOKABLE static void alert(QQuickItem* item);
};

}  // namespace velmora
