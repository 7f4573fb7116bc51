#pragma once

#include <QtQml/qqmlregistration.h>
#include <QColor>
#include <QObject>
#include <QUrl>

namespace velmora {

/// Builds the addresses under which the image provider serves the symbols.
class SymbolAddress final : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON

  public:
    using QObject::QObject;

    /// `image://symbol/<name>/<weight>/<rrggbbaa>`; empty for an empty name. The weight is "light",
    /// "regular" or "bold".
    Q_INVOKABLE static QUrl of(const QString& name, const QColor& tint, const QString& weight);
};

}  // namespace velmora
