#pragma once

#include <QLocale>
#include <QScopeGuard>

namespace velmora {

/// Has the interface speak that language as long as the answer lives.
[[nodiscard]] inline auto speaking(const QString& language) {
    const QLocale before;
    QLocale::setDefault(QLocale(language));
    return qScopeGuard([before] { QLocale::setDefault(before); });
}

}  // namespace velmora
