#pragma once

#include <QString>
#include <QStringList>

namespace velmora {

using namespace Qt::StringLiterals;

/// Turns a message template into one person's text. Pure functions, no state.
namespace TemplateRenderer {

inline const QString firstNamePlaceholder = u"{first_name}"_s;
inline const QString customNotePlaceholder = u"{custom_note}"_s;

/// The template of a list that has none of its own.
[[nodiscard]] const QString& defaultTemplate();

/// The template's versions in order, each trimmed, empty ones dropped. A line that is "---" between
/// spaces and tabs separates them.
[[nodiscard]] QStringList splitVersions(const QString& text);

/// Which of `count` (at least 1) versions the owner of `phone` gets, from 0: always the same one.
/// FNV-1a with 64 bits over the phone's UTF-8 bytes, modulo `count`.
[[nodiscard]] quint64 versionIndex(const QString& phone, quint64 count);

/// The version with the first name and the note put in, trimmed. A note that is not blank is
/// preceded by one space; a blank one leaves nothing.
[[nodiscard]] QString renderText(const QString& version, const QString& firstName,
                                 const QString& note);

/// True when people may get different texts: the template holds a placeholder or several versions.
[[nodiscard]] bool isPersonalised(const QString& text);

}  // namespace TemplateRenderer

}  // namespace velmora
