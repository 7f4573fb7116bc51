#include "sending/send_outcome.h"

#include <QTextBoundaryFinder>

using namespace Qt::StringLiterals;

namespace velmora {

namespace {

QString firstCharacters(const QString& text, int count) {
    QTextBoundaryFinder finder(QTextBoundaryFinder::Grapheme, text);
    qsizetype end = 0;
    for (int i = 0; i < count && end < text.size(); ++i)
        end = finder.toNextBoundary();
    return text.first(end);
}

}  // namespace

void describeRefusal(LogEntry& entry, const QString& label, const SendError& error) {
    constexpr int longestDetail = 200;
    entry.service = label;
    entry.status = statusFailed;
    entry.detail = firstCharacters(error.description, longestDetail);
}

void describeOutcome(LogEntry& entry, const QString& label,
                     const std::optional<SentRecord>& record) {
    entry.service = label;
    entry.status = statusUnverified;
    if (!record) {
        entry.detail = u"No record in Messages yet. Check the thread on your phone."_s;
        return;
    }
    const bool isSent = record->error == 0 && record->isConclusive();
    const bool keepsLabel = isSent && label == fallbackLabel;
    if (!keepsLabel && !record->service.isEmpty())
        entry.service = record->service;
    entry.line = record->line;
    if (isSent) {
        entry.status = statusSent;
    } else if (record->error != 0) {
        entry.status = statusFailed;
        entry.detail = u"Messages error "_s + QString::number(record->error);
    } else {
        entry.detail = u"Messages hasn't confirmed it yet. Check the thread."_s;
    }
}

}  // namespace velmora
