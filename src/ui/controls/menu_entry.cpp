#include "ui/controls/menu_entry.h"

#include <QKeySequence>

using namespace Qt::StringLiterals;

namespace velmora {

QString MenuEntry::keys() const {
    return QKeySequence(shortcut, QKeySequence::PortableText).toString(QKeySequence::NativeText);
}

QStringList MenuEntry::sequences() const {
    if (shortcut.isEmpty())
        return {};
    const QLatin1String mainReturn("Return");
    QStringList all(shortcut);
    if (shortcut.endsWith(mainReturn))
        all.append(shortcut.chopped(mainReturn.size()) + "Enter"_L1);
    return all;
}

}  // namespace velmora
