#pragma once

#include <QStringView>

namespace velmora {

/// `text` without the space separators of Unicode (category Zs) and tabs at its ends; line breaks
/// stay.
[[nodiscard]] inline QStringView trimmedSpacesAndTabs(QStringView text) {
    const auto isBlank = [](QChar character) {
        return character == u'\t' || character.category() == QChar::Separator_Space;
    };
    while (!text.isEmpty() && isBlank(text.front()))
        text = text.sliced(1);
    while (!text.isEmpty() && isBlank(text.back()))
        text.chop(1);
    return text;
}

/// `text` without the white space at its ends, line breaks of every kind included (Unicode's
/// White_Space, so no zero width space).
[[nodiscard]] inline QStringView trimmedWhiteSpace(QStringView text) {
    return text.trimmed();
}

}  // namespace velmora
