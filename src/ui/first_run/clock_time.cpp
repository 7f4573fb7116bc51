#include "ui/first_run/clock_time.h"

#include <QLocale>

using namespace Qt::StringLiterals;

namespace velmora {

QString clockTimeText(Moment moment) {
    const QLocale locale;
    // The long format differs from the one with seconds only by the zone, "t", at one of its ends.
    QString format = locale.timeFormat(QLocale::LongFormat);
    for (const QString& zone : {u"(tttt)"_s, u"tttt"_s, u"[t]"_s, u"(t)"_s})
        format.remove(zone);
    format = format.trimmed();
    if (format.endsWith(u't'))
        format.chop(1);
    if (format.startsWith(u't'))
        format.remove(0, 1);
    return locale.toString(localTime(moment).time(), format.trimmed());
}

}  // namespace velmora
