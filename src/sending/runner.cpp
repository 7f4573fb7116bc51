#include "sending/runner.h"

#include <algorithm>
#include <utility>

#include "sending/pacing.h"
#include "sending/runner_pause.h"
#include "sending/send_outcome.h"

using namespace Qt::StringLiterals;

namespace velmora {

Runner::Runner(Tools tools) : tools_(std::move(tools)) {}

Runner::~Runner() {
    life_.reset();
    if (resumeContinuation_)
        resumeContinuation_->abandon();
}

bool Runner::isActive() const {
    return state == State::running || state == State::paused || state == State::stopping;
}

void Runner::start(const QString& batch, const std::vector<Item>& items, const AppConfig& config) {
    if (isActive())
        return;
    this->batch = batch;
    reloadLog();
    std::vector<Item> queue = itemsToSend(items, config.maxPerRun);

    config_ = config;
    sendAnyway_ = false;
    stopRequested_ = false;
    pending_.clear();
    inHand_.reset();
    failures_ = 0;
    failedCount_ = 0;
    done = 0;
    total = static_cast<qint64>(queue.size());
    message = QString();
    activity_ = tools_.activities.beginActivity(u"Sending your messages"_s);
    state = State::running;
    run(std::move(queue));
}

std::vector<Runner::Item> Runner::itemsToSend(const std::vector<Item>& items, qint64 limit) const {
    QSet<QString> sent = tools_.sendLog.alreadySent(batch);
    // The history may have settled lines that could not be written.
    for (const LogEntry& entry : log_)
        if (isSentStatus(entry.status))
            sent.insert(entry.phone);
    std::vector<Item> queue;
    std::ranges::copy_if(items, std::back_inserter(queue),
                         [&sent](const Item& item) { return !sent.contains(item.phone); });
    const auto longest = static_cast<quint64>(std::max<qint64>(limit, 1));
    if (queue.size() > longest)
        queue.resize(longest);
    return queue;
}

void Runner::stop() {
    if (!isActive())
        return;
    stopRequested_ = true;
    state = State::stopping;
    endPause(false);
}

void Runner::resume() {
    if (state != State::paused)
        return;
    state = State::running;
    message = QString();
    endPause(true);
}

void Runner::endPause(bool goOn) {
    if (Pause* paused = std::exchange(resumeContinuation_, nullptr); paused != nullptr)
        paused->end(goOn);
}

QCoro::Task<> Runner::run(std::vector<Item> queue) {
    for (size_t i = 0; i < queue.size(); ++i) {
        // Whatever the settings, the window gets a turn between two texts, and so does Stop.
        co_await sleep(0);
        if (stopRequested_)
            break;
        const bool goOn = co_await handleItem(queue[i]);
        if (!goOn || i + 1 == queue.size())
            break;
        const bool next = co_await waitForNext();
        if (!next)
            break;
    }
    if (stopRequested_)
        co_await checkPending();
    else
        co_await finalCheck();
    finish();
}

QCoro::Task<bool> Runner::handleItem(Item item) {
    const bool inHours = co_await sendingHours();
    if (!inHours)
        co_return false;
    current = item.name;
    const LogEntry entry = co_await sendOne(item);
    putDown(entry);
    inHand_.reset();
    log_.push_back(entry);
    Q_EMIT logAppended();
    done = done + 1;
    current = std::nullopt;
    if (entry.status == statusSent)
        failures_ = 0;
    else if (entry.status == statusFailed)
        countFailure();
    const bool rightLine = co_await checkLine(entry, item);
    if (!rightLine)
        co_return false;
    co_return co_await checkFailures();
}

QCoro::Task<bool> Runner::sendingHours() {
    if (sendAnyway_ || !isOutsideSendingHours(config_, clock().now()))
        co_return true;
    sendAnyway_ =
        co_await pause(u"Outside your sending hours ("_s + config_.quietStart + u" to "_s +
                       config_.quietEnd + u"). Resume to send anyway, or stop and run later."_s);
    co_return sendAnyway_;
}

QCoro::Task<bool> Runner::waitForNext() {
    const bool waited = co_await pace(randomWait(config_, tools_.surroundings.random));
    if (!waited)
        co_return false;
    // The checks made while waiting may have found failures.
    co_return co_await checkFailures();
}

QCoro::Task<bool> Runner::pace(double seconds) {
    const double end = clock().uptime() + seconds;
    double nextCheck = clock().uptime() + checkInterval;
    while (clock().uptime() < end) {
        if (stopRequested_) {
            nextIn = std::nullopt;
            co_return false;
        }
        nextIn = wholeSecondsUp(end - clock().uptime());
        if (clock().uptime() >= nextCheck) {
            co_await checkPending();
            nextCheck = clock().uptime() + checkInterval;
        }
        co_await sleep(0.5);
    }
    nextIn = std::nullopt;
    co_return !stopRequested_;
}

QCoro::Task<> Runner::finalCheck() {
    if (pending_.empty())
        co_return;
    message = u"Checking the last sends."_s;
    const double deadline = clock().uptime() + 120;
    while (!pending_.empty() && !stopRequested_ && clock().uptime() < deadline) {
        co_await checkPending();
        co_await sleep(checkInterval);
    }
}

QCoro::Task<bool> Runner::pause(QString reason) {
    if (stopRequested_)
        co_return false;
    const std::weak_ptr<Life> life = life_;
    Pause paused(clock());
    resumeContinuation_ = &paused;
    message = reason;
    nextIn = std::nullopt;
    // Last, for whoever hears of it may answer at once; whoever heard the reason may have stopped.
    if (!stopRequested_)
        state = State::paused;
    const bool resumed = co_await Pause::Answer(paused);
    unwindWithout(life);
    // A stop may have come after the answer.
    co_return resumed && !stopRequested_;
}

QCoro::Task<> Runner::sleep(double seconds) {
    const std::weak_ptr<Life> life = life_;
    co_await Sleep(clock(), seconds);
    unwindWithout(life);
}

void Runner::finish() {
    tools_.sendLog.retry();
    activity_.reset();
    current = std::nullopt;
    nextIn = std::nullopt;
    message = summary();
    // Last, for whoever hears of it may start the next run.
    state = State::done;
}

QString Runner::summary() const {
    const QString counts = QString::number(done) + u" of "_s + QString::number(total);
    const QString tail =
        failedCount_ < 1 ? QString() : u" "_s + QString::number(failedCount_) + u" failed."_s;
    if (stopRequested_)
        return u"Stopped after "_s + counts + u"."_s + tail;
    return u"Finished. "_s + counts + u" processed."_s + tail;
}

}  // namespace velmora
