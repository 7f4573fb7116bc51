#include "ui/look/symbol_address.h"

using namespace Qt::StringLiterals;

namespace velmora {

QUrl SymbolAddress::of(const QString& name, const QColor& tint, const QString& weight) {
    if (name.isEmpty())
        return {};
    const quint32 rgba =
        (static_cast<quint32>(tint.rgb()) << 8U) | static_cast<quint32>(tint.alpha());
    return u"image://symbol/%1/%2/%3"_s.arg(name, weight).arg(rgba, 8, 16, '0'_L1);
}

}  // namespace velmora
