#include "ui/run/run_display.h"

#include <QLocale>
#include <cmath>

#include "sending/send_outcome.h"
#include "ui/controls/whole_numbers.h"

using namespace Qt::StringLiterals;

namespace velmora {

namespace {

QString joined(QStringList parts) {
    parts.removeAll(QString());
    return parts.join(u" \u00B7 "_s);
}

QString progressText(const Runner& runner) {
    return runner.total >= 1 ? u"%1 of %2"_s.arg(runner.done.value()).arg(runner.total.value())
                             : QString();
}

QString nowText(const Runner& runner) {
    if (runner.state != Runner::State::running)
        return {};
    if (const auto& name = runner.current.value())
        return QString(u"Sending to "_s + *name + u'\u2026');
    if (const auto& seconds = runner.nextIn.value())
        return QString(u"Next in "_s + QString::number(*seconds) + u's');
    return {};
}

QString wholeSeconds(double delay) {
    constexpr double beyondWhole = 0x1p63;
    const bool whole = std::isfinite(delay) && delay >= -beyondWhole && delay < beyondWhole;
    return whole ? QString::number(static_cast<qint64>(delay))
                 : QString::number(delay, 'g', QLocale::FloatingPointShortest);
}

}  // namespace

QString statusLine(const Runner& runner) {
    return withWholeNumbers(joined({progressText(runner), nowText(runner), runner.message}));
}

QString sendTitle(qsizetype people) {
    return people == 0 ? u"Send"_s : u"Send to %1\u2026"_s.arg(people);
}

QString confirmTitle(qsizetype people) {
    return u"Send to %1 %2?"_s.arg(people).arg(people == 1 ? u"person"_s : u"people"_s);
}

QString paceLine(const AppConfig& config) {
    return wholeSeconds(config.delayMin) + u" to "_s + wholeSeconds(config.delayMax) +
           u" seconds apart"_s;
}

ActivityEntry activityEntry(const LogEntry& entry) {
    ActivityEntry shown{
        .name = entry.name,
        .symbol = u"exclamationmark.triangle.fill"_s,
        .tone = Tone::orange,
        .details = withWholeNumbers(
            joined({QString(entry.status).replace(u'_', u' '), entry.service, entry.detail})),
        .clockTime = QLocale().toString(localTime(entry.time).time(), QLocale::ShortFormat)};
    if (entry.status == statusSent) {
        shown.symbol = u"checkmark.circle.fill"_s;
        shown.tone = Tone::green;
    } else if (entry.status == statusFailed) {
        shown.symbol = u"xmark.octagon.fill"_s;
        shown.tone = Tone::red;
    }
    return shown;
}

}  // namespace velmora
