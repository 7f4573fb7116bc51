#include "core/collation.h"

#include <QLocale>

namespace velmora {

QCollator nameCollator() {
    // The locale of no language compares by code units, whatever is asked of letter case.
    const QLocale user;
    QCollator collator(user.language() == QLocale::C ? QLocale(QLocale::English) : user);
    collator.setCaseSensitivity(Qt::CaseInsensitive);
    return collator;
}

}  // namespace velmora
