#include "ui/controls/number_text.h"

#include <QLocale>
#include <cmath>

namespace velmora {

QString NumberText::shown(double value) {
    QLocale locale;
    locale.setNumberOptions(QLocale::OmitGroupSeparator);
    return locale.toString(value, 'f', QLocale::FloatingPointShortest);
}

bool NumberText::readable(const QString& text) {
    return parse(text).has_value();
}

double NumberText::value(const QString& text) {
    return parse(text).value_or(0);
}

std::optional<double> NumberText::parse(const QString& text) {
    bool read = false;
    const QString trimmed = text.trimmed();
    double value = QLocale().toDouble(trimmed, &read);
    if (!read)
        value = QLocale::c().toDouble(trimmed, &read);
    if (!read || !std::isfinite(value))
        return std::nullopt;
    return value;
}

}  // namespace velmora
