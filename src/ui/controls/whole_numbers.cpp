#include "ui/controls/whole_numbers.h"

#include <QRegularExpression>

using namespace Qt::StringLiterals;

namespace velmora {

QString withWholeNumbers(QString text) {
    static const QRegularExpression gap(u"(?<=\\(\\d{3}\\)) (?=\\d{3}-\\d{4})"_s);
    return text.replace(gap, u"\u00A0"_s);
}

}  // namespace velmora
