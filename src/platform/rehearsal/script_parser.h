#pragma once

#include <QString>
#include <QStringView>
#include <expected>
#include <optional>

#include "core/records.h"

namespace velmora {

/// What a script asks Messages to do.
struct ScriptedText {
    QString phone;
    Service service = Service::iMessage;
    QString text;
};

/// Why Messages would not run a script.
struct ScriptError {
    QString description;  ///< a sentence beginning "Messages got an error: "
};

/// A string literal of the script language.
struct StringLiteral {
    QString value;      ///< its text, the escapes undone
    qsizetype end = 0;  ///< the index after its closing quotation mark
};

/// Reads the string literal whose opening quotation mark stands at `start`. A backslash stands
/// before a quotation mark or another backslash; nothing when it stands before anything else, when
/// the literal does not begin at `start` or does not end.
[[nodiscard]] std::optional<StringLiteral> readStringLiteral(QStringView source, qsizetype start);

/// Understands the one script that sends a text, from its source alone. Fails at the first
/// character that does not fit, a character after the end included.
[[nodiscard]] std::expected<ScriptedText, ScriptError> parseMessageScript(QStringView source);

}  // namespace velmora
