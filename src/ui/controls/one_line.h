#pragma once

#include <QtQml/qqmlregistration.h>
#include <QValidator>

namespace velmora {

/// Keeps what comes into a field of one line on one line: a line break, as a text from elsewhere
/// may hold, becomes a space.
class OneLine final : public QValidator {
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON

  public:
    using QValidator::QValidator;

    /// Accepts every text, after the change.
    State validate(QString& text, int& caret) const override;
};

}  // namespace velmora
