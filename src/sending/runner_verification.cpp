#include <algorithm>
#include <utility>

#include "core/fresh_id.h"
#include "core/phone.h"
#include "history/sent_record_wait.h"
#include "sending/runner.h"
#include "sending/send_outcome.h"

using namespace Qt::StringLiterals;

namespace velmora {

void Runner::unwindWithout(const std::weak_ptr<Life>& life) {
    if (life.expired())
        throw Gone{};
}

LogEntry Runner::newEntry(const Item& item) const {
    return {.id = freshID(),
            .time = clock().now(),
            .batch = batch,
            .name = item.name,
            .phone = item.phone,
            .service = {},
            .line = {},
            .status = {},
            .detail = {}};
}

void Runner::countFailure() {
    ++failures_;
    ++failedCount_;
}

QCoro::Task<LogEntry> Runner::sendOne(Item item) {
    Attempt first = co_await attempt(item, Service::iMessage, serviceName(Service::iMessage));
    if (!first.record || first.record->error == 0)
        co_return first.entry;
    Attempt fallback = co_await attempt(item, Service::sms, fallbackLabel);
    co_return fallback.entry;
}

QCoro::Task<Runner::Attempt> Runner::attempt(Item item, Service service, QString label,
                                             bool logged) {
    const std::weak_ptr<Life> life = life_;
    // What cannot be taken back is written down first: whatever ends the program from here on,
    // nobody gets the text a second time.
    if (!logged) {
        LogEntry line = newEntry(item);
        describeOutcome(line, label, std::nullopt);
        putDown(line);
    }
    const qint64 since = historyTimestamp(clock().now());
    const auto handed = handOver(item, service);
    unwindWithout(life);
    Attempt result;
    if (!handed) {
        result.entry = newEntry(item);
        describeRefusal(result.entry, label, handed.error());
        co_return result;
    }
    result.record = co_await waitForSentRecord(tools_.surroundings, tools_.historyPath, item.phone,
                                               since, config_.verifyWait);
    unwindWithout(life);
    result.entry = newEntry(item);
    describeOutcome(result.entry, label, result.record);
    if (result.entry.status == statusUnverified)
        pending_.push_back({item, since, service, label, result.entry.id});
    co_return result;
}

std::expected<void, SendError> Runner::handOver(const Item& item, Service service) {
    if (!tools_.sendLog.isWritten(batch, item.phone))
        return std::unexpected(SendError{
            u"The log of the run can't be written, so nothing was sent. Check the disk."_s});
    return tools_.sender.send(item.phone, service, item.text);
}

void Runner::putDown(const LogEntry& line) {
    if (inHand_)
        tools_.sendLog.replace(*inHand_, line);
    else
        tools_.sendLog.append(line);
    inHand_ = line;
}

QCoro::Task<bool> Runner::checkLine(LogEntry entry, Item item) {
    const QString& sender = config_.senderNumber;
    if (!entry.line.startsWith(u'+') || sender.isEmpty() || entry.line == sender)
        co_return true;
    co_return co_await pause(item.name + u" got it from "_s + displayPhone(entry.line) +
                             u", not "_s + displayPhone(sender) +
                             u". Fix the line on your iPhone, then resume."_s);
}

QCoro::Task<bool> Runner::checkFailures() {
    if (failures_ < config_.maxFailures)
        co_return true;
    const bool resumed =
        co_await pause(QString::number(failures_) +
                       u" sends in a row failed. Check Messages and your iPhone, then resume."_s);
    failures_ = 0;
    co_return resumed;
}

QCoro::Task<> Runner::checkPending() {
    if (pending_.empty())
        co_return;
    auto history = MessagesDB::open(tools_.historyPath);
    if (!history)
        co_return;
    // A fallback may leave a pending send of its own, which waits for the next pass.
    const std::vector<Pending> snapshot = pending_;
    for (const Pending& send : snapshot) {
        const std::optional<SentRecord> record =
            history->lastSent(send.item.phone, send.since).value_or(std::nullopt);
        if (!record || !record->isConclusive())
            continue;
        std::erase_if(pending_,
                      [&send](const Pending& other) { return other.entryID == send.entryID; });
        const LogEntry settled = co_await settle(send, *record);
        if (settled.status == statusFailed)
            countFailure();
        replaceEntry(send.entryID, settled);
    }
}

QCoro::Task<LogEntry> Runner::settle(Pending send, SentRecord record) {
    if (record.error != 0 && send.service == Service::iMessage && !stopRequested_) {
        Attempt fallback = co_await attempt(send.item, Service::sms, fallbackLabel, true);
        co_return fallback.entry;
    }
    LogEntry entry = newEntry(send.item);
    describeOutcome(entry, send.label, record);
    const auto line = std::ranges::find(log_, send.entryID, &LogEntry::id);
    if (line != log_.end())
        entry.time = line->time;
    co_return entry;
}

void Runner::replaceEntry(const QUuid& id, const LogEntry& entry) {
    const auto line = std::ranges::find(log_, id, &LogEntry::id);
    if (line == log_.end())
        return;
    tools_.sendLog.replace(std::exchange(*line, entry), entry);
    Q_EMIT logEntryChanged(std::distance(log_.begin(), line));
}

void Runner::reloadLog() {
    log_ = tools_.sendLog.load(batch);
    settleLog();
    Q_EMIT logReplaced();
}

void Runner::settleLog() {
    const auto isOpen = [](const LogEntry& line) { return line.status != statusSent; };
    if (std::ranges::none_of(log_, isOpen))
        return;
    auto history = MessagesDB::open(tools_.historyPath);
    if (!history)
        return;
    bool changed = false;
    for (LogEntry& line : log_) {
        if (!isOpen(line))
            continue;
        constexpr double longestWait = 120;
        const qint64 since = historyTimestamp(line.time + -longestWait);
        const std::optional<SentRecord> record =
            history->lastSent(line.phone, since).value_or(std::nullopt);
        if (!record || record->error != 0 || !record->isConclusive())
            continue;
        line.id = freshID();
        if (!record->service.isEmpty())
            line.service = record->service;
        line.line = record->line;
        line.status = statusSent;
        line.detail.clear();
        changed = true;
    }
    if (changed)
        tools_.sendLog.rewrite(batch, log_);
}

}  // namespace velmora
