#pragma once

#include <qcoro/qcorotask.h>

#include <QObject>
#include <QObjectBindableProperty>
#include <memory>
#include <optional>
#include <vector>

#include "core/surroundings.h"
#include "history/messages_db.h"
#include "sending/activity_source.h"
#include "sending/message_sender.h"
#include "storage/app_config.h"
#include "storage/send_log.h"

namespace velmora {

/// Carries out a run: sends one text at a time with random waits, inside the sending hours,
/// verifies each against the history, and pauses itself when something looks wrong. Lives on the
/// interface thread.
class Runner final : public QObject {
    Q_OBJECT

  public:
    enum class State { idle, running, paused, stopping, done };
    Q_ENUM(State)

    /// One send queued for a run.
    struct Item {
        QString name;   ///< the person's display name, for the log
        QString phone;  ///< the number to send to
        QString text;   ///< the final message
    };

    /// One send that the history has not settled yet.
    struct Pending {
        Item item;
        qint64 since;     ///< history timestamp of the moment just before the send
        Service service;  ///< what the send asked for
        QString label;    ///< the log's word for it: "iMessage" or "SMS (fallback)"
        QUuid entryID;    ///< the log line that a later check replaces
    };

    /// What a run works with. All outlive the runner.
    struct Tools {
        MessageSender& sender;
        ActivitySource& activities;
        SendLog& sendLog;
        QString historyPath;
        Surroundings surroundings;
    };

    explicit Runner(Tools tools);
    /// Ends an active run on the spot; nothing touches the runner afterwards. A text in hand stands
    /// in the log as unverified. What of the run still waits is freed when the clock calls it, so
    /// the clock goes last.
    ~Runner() override;

    /// True while a run is running, paused or stopping.
    [[nodiscard]] bool isActive() const;

    /// Starts a run of `items` under the name `batch`, unless one is active: drops whoever was
    /// already sent under that name and keeps the first `maxPerRun` (at least 1). Later changes of
    /// the settings do not reach it. Returns at once.
    void start(const QString& batch, const std::vector<Item>& items, const AppConfig& config);

    /// Asks the active run to end after the item in progress. Returns at once.
    void stop();

    /// Lets a paused run go on. Returns at once.
    void resume();

    /// Replaces `log` by the stored lines of `batch` and settles those that the history has
    /// confirmed since. Called only while no run is active: reading gives every line another id,
    /// by which a run finds its own again.
    void reloadLog();

    /// The send-log lines of `batch`: earlier runs' first, then this run's in the order they were
    /// made. In the file, the line of a text stands before the text leaves; here, once its outcome
    /// is known.
    [[nodiscard]] const std::vector<LogEntry>& log() const { return log_; }

  Q_SIGNALS:
    void stateChanged();
    void messageChanged();
    void doneChanged();
    void totalChanged();
    void currentChanged();
    void nextInChanged();
    void batchChanged();
    void logReplaced();                     ///< the whole log is another
    void logAppended();                     ///< one line more, at the end
    void logEntryChanged(qsizetype index);  ///< the line at `index` is another

  public:
    // Observable: an assignment of another value announces itself.
    Q_OBJECT_BINDABLE_PROPERTY_WITH_ARGS(Runner, State, state, State::idle, &Runner::stateChanged)
    /// Why the run pauses, "Checking the last sends.", the summary of the last run, or empty.
    Q_OBJECT_BINDABLE_PROPERTY(Runner, QString, message, &Runner::messageChanged)
    /// Items of the current run handled so far, and all of them.
    Q_OBJECT_BINDABLE_PROPERTY_WITH_ARGS(Runner, qint64, done, 0, &Runner::doneChanged)
    Q_OBJECT_BINDABLE_PROPERTY_WITH_ARGS(Runner, qint64, total, 0, &Runner::totalChanged)
    /// The name of the person being sent to right now.
    Q_OBJECT_BINDABLE_PROPERTY(Runner, std::optional<QString>, current, &Runner::currentChanged)
    /// Whole seconds until the next send, while waiting between two.
    Q_OBJECT_BINDABLE_PROPERTY(Runner, std::optional<qint64>, nextIn, &Runner::nextInChanged)
    /// The run name: the key of the send log.
    Q_OBJECT_BINDABLE_PROPERTY(Runner, QString, batch, &Runner::batchChanged)

  private:
    struct Attempt {
        LogEntry entry;
        std::optional<SentRecord> record;
    };
    class Pause;

    // What a suspended task keeps an eye on. Without it the runner is gone: the task then unwinds
    // by throwing Gone, which ends with the task, and touches nothing of the runner any more. So
    // every await of something other than the runner's own tasks is followed by `unwindWithout`.
    struct Life {};
    struct Gone {};
    static void unwindWithout(const std::weak_ptr<Life>& life);

    // Seconds between two readings of the unconfirmed sends.
    static constexpr double checkInterval = 5;

    // The run (runner.cpp). A false answer ends it.
    [[nodiscard]] std::vector<Item> itemsToSend(const std::vector<Item>& items, qint64 limit) const;
    QCoro::Task<> run(std::vector<Item> queue);
    QCoro::Task<bool> handleItem(Item item);
    QCoro::Task<bool> sendingHours();
    QCoro::Task<bool> waitForNext();
    QCoro::Task<bool> pace(double seconds);
    QCoro::Task<> finalCheck();
    QCoro::Task<bool> pause(QString reason);
    QCoro::Task<> sleep(double seconds);
    void endPause(bool goOn);
    void finish();
    [[nodiscard]] QString summary() const;

    // Verification (runner_verification.cpp).
    QCoro::Task<LogEntry> sendOne(Item item);
    /// `logged`: whether the person has a line in the log already, which the attempt replaces.
    QCoro::Task<Attempt> attempt(Item item, Service service, QString label, bool logged = false);
    /// Hands a text to Messages, unless its line is not on the disk.
    [[nodiscard]] std::expected<void, SendError> handOver(const Item& item, Service service);
    void putDown(const LogEntry& line);
    QCoro::Task<bool> checkLine(LogEntry entry, Item item);
    QCoro::Task<bool> checkFailures();
    QCoro::Task<> checkPending();
    QCoro::Task<LogEntry> settle(Pending send, SentRecord record);
    [[nodiscard]] LogEntry newEntry(const Item& item) const;
    void countFailure();
    void replaceEntry(const QUuid& id, const LogEntry& entry);
    void settleLog();

    [[nodiscard]] Clock& clock() const { return tools_.surroundings.clock; }

    Tools tools_;
    std::shared_ptr<Life> life_ = std::make_shared<Life>();
    AppConfig config_;
    bool sendAnyway_ = false;
    bool stopRequested_ = false;
    Pause* resumeContinuation_ = nullptr;
    std::unique_ptr<Activity> activity_;
    // The line of the text in hand, as it stands in the log.
    std::optional<LogEntry> inHand_;
    std::vector<Pending> pending_;
    std::vector<LogEntry> log_;
    qint64 failures_ = 0;
    qint64 failedCount_ = 0;
};

}  // namespace velmora
