#pragma once

#include <QtQml/qqmlregistration.h>
#include <QObject>
#include <optional>

namespace velmora {

/// Numbers as the user reads and types them, in the decimal notation of their language.
class NumberText final : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON

  public:
    using QObject::QObject;

    /// `value` with as many decimals as it needs and no grouping.
    Q_INVOKABLE static QString shown(double value);
    /// Whether `text` is a finite number, in the user's notation or with a decimal point.
    Q_INVOKABLE static bool readable(const QString& text);
    /// The number that `text` holds; 0 when it is not readable.
    Q_INVOKABLE static double value(const QString& text);

  private:
    static std::optional<double> parse(const QString& text);
};

}  // namespace velmora
