#include "core/collation.h"

#include <QLocale>

namespace velmora {

QCollator nameCollator() {
    QCollator collator{QLocale()};
    collator.setCaseSensitivity(Qt::CaseInsensitive);
    return collator;
}

}  // namespace velmora
