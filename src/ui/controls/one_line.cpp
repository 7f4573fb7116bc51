#include "ui/controls/one_line.h"

#include <QRegularExpression>

using namespace Qt::StringLiterals;

namespace velmora {

QValidator::State OneLine::validate(QString& text, int& caret) const {
    static const QRegularExpression lineBreak(u"\\r\\n|[\\n\\v\\f\\r\\x{85}\\x{2028}\\x{2029}]"_s);
    const QString before = text.first(caret);
    caret = static_cast<int>(QString(before).replace(lineBreak, u" "_s).size());
    text.replace(lineBreak, u" "_s);
    return Acceptable;
}

}  // namespace velmora
