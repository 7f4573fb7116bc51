// Runs with random people, faults, settings, stops and resumes on the virtual clock, each from a
// seed of its own, judged by what Messages was handed and what the files hold, and by nothing that
// the runner says of itself: velmora_random_runs <how many> [first seed].

#include <QCoreApplication>
#include <cstdio>
#include <random>
#include <ranges>

#include "platform/rehearsal/script_parser.h"
#include "sending/sending_world.h"

using namespace Qt::StringLiterals;

using namespace velmora;

namespace {

/// What Messages does with one person's texts.
constexpr std::array<const char*, 11> behaviours = {
    R"({})",
    R"({"iMessage": {"error": 22}})",
    R"({"error": 22})",
    R"({"scriptError": "Messages got an error."})",
    R"({"SMS": {"scriptError": "No SMS."}, "iMessage": {"error": 3}})",
    R"({"sentAfter": 50, "deliveredAfter": null})",
    R"({"recordAfter": 21, "error": 22})",
    R"({"iMessage": {"recordAfter": 26, "error": 22}})",
    R"({"recordAfter": null})",
    R"({"line": "+15550100002"})",
    R"({"line": "me@example.com"})"};

/// What is known of an evening so far.
struct Evening {
    QSet<QString> sentBefore;
    qint64 linesBefore = 0;
    qint64 total = 0;  ///< whom the run is to text
    qint64 people = 0;
    QStringList handed = {};
    double last = -1;  ///< when the last person's turn came
    bool isStopped = false;
    bool wasPaused = false;  ///< since then
    bool mayIgnoreHours = false;
};

class RandomRun : SendingWorld {
  public:
    explicit RandomRun(unsigned seed) : random_(seed) {}

    /// What must always hold and does not, in words; empty when all does.
    QString firstFault() {
        choose();
        for (int evening = 0; evening < 2 && fault_.isEmpty(); ++evening)
            playEvening();
        return fault_;
    }

  private:
    int upTo(int most) { return std::uniform_int_distribution(0, most)(random_); }
    bool often(int percent) { return upTo(99) < percent; }
    double seconds(int most) { return upTo(most * 4) / 4.0; }
    void must(bool holds, const QString& what) {
        if (!holds && fault_.isEmpty())
            fault_ = what;
    }

    void choose() {
        const QStringList stored = {statusSent, statusFailed, statusUnverified};
        std::map<int, QByteArray> people;
        count_ = upTo(8);
        for (int n = 0; n < count_; ++n) {
            people[n] = behaviours[static_cast<size_t>(often(40) ? 0 : upTo(10))];
            if (often(15))
                store(n, stored[upTo(2)], 9e5);
        }
        messages(people);
        config.delayMin = seconds(60);
        config.delayMax = seconds(60);
        config.verifyWait = std::array{0.0, 1.0, 6.0, 20.0}[static_cast<size_t>(upTo(3))];
        config.maxFailures = 1 + upTo(3);
        config.maxPerRun = upTo(9);
        if (often(30))
            config.quietEnd = u"11:%1"_s.arg(upTo(9), 2, 10, QChar(u'0'));
        if (often(20))
            config.senderNumber.clear();
        scripts.before = [this](const QString& source) { judgeText(source); };
        QObject::connect(runner.get(), &Runner::stateChanged, runner.get(), [this] { answer(); });
    }

    void answer() {
        if (runner->state != State::paused)
            return;
        evening_.wasPaused = true;
        const bool resumes = often(75);
        const bool asksForHours = runner->message.value().startsWith(u"Outside");
        must(!asksForHours || !evening_.mayIgnoreHours, u"the hours are asked for twice"_s);
        clock().after(seconds(90), [this, resumes, asksForHours] {
            evening_.mayIgnoreHours |= resumes && asksForHours;
            resumes ? runner->resume() : stop();
        });
    }
    void stop() {
        evening_.isStopped |= runner->isActive();
        runner->stop();
    }

    void judgeText(const QString& source) {
        const auto text = parseMessageScript(source).value();
        const QString handed = text.phone + serviceName(text.service);
        must(!evening_.handed.contains(handed), text.phone + u" is texted twice"_s);
        must(!evening_.sentBefore.contains(text.phone), text.phone + u" was sent before"_s);
        const std::vector<LogEntry> lines = SendLog(folder, clock()).load(batch);
        const auto own = std::ranges::find(lines.begin() + evening_.linesBefore, lines.end(),
                                           text.phone, &LogEntry::phone);
        must(own != lines.end() && own->status == statusUnverified,
             text.phone + u" is texted before the log says so"_s);
        const bool inHand =
            evening_.handed.value(evening_.handed.size() - 1).startsWith(text.phone);
        must(!evening_.isStopped || inHand, u"a text leaves after the stop"_s);
        must(activities.held == 1, u"the computer may go to sleep"_s);
        start(1);  // which is to have no effect
        if (text.service == Service::iMessage)
            judgeTurn();
        else
            must(recordOf(text.phone).error != 0, text.phone + u" gets an SMS for nothing"_s);
        evening_.handed += handed;
    }

    /// A person's turn comes in the sending hours, and neither too early nor too late.
    void judgeTurn() {
        const double wait = clock().uptime() - std::exchange(evening_.last, clock().uptime());
        const auto [least, longest] = std::minmax(config.delayMin, config.delayMax);
        const double checks = (2 + 2 * count_) * (config.verifyWait + 2);
        const bool isFirst = evening_.people == 0;
        must(isFirst || wait >= least, u"a wait is too short"_s);
        must(isFirst || evening_.wasPaused || wait <= longest + 1 + checks,
             u"a wait is too long"_s);
        must(evening_.mayIgnoreHours || !isOutsideSendingHours(config, clock().now()),
             u"it is late"_s);
        must(std::ssize(runner->log()) == evening_.linesBefore + evening_.people,
             u"a line is shown before its outcome"_s);
        evening_.wasPaused = false;
        ++evening_.people;
    }

    void playEvening() {
        runner->batch = batch;
        runner->reloadLog();
        evening_ = {.sentBefore = SendLog(folder, clock()).alreadySent(batch),
                    .linesBefore = std::ssize(runner->log())};
        const auto isLeft = [this](int n) { return !evening_.sentBefore.contains(phone(n)); };
        const qint64 left = std::ranges::count_if(std::views::iota(0, count_), isLeft);
        evening_.total = std::min(left, std::max<qint64>(config.maxPerRun, 1));
        start(count_);
        if (often(25))
            clock().after(seconds(200), [this] { stop(); });
        must(clock().runUntilIdle(1e5), u"the run does not end"_s);
        judgeEnd();
        clock().advance(86400);
    }

    void judgeEnd() {
        const auto& [total, people] = std::pair(evening_.total, evening_.people);
        must(runner->state == State::done && activities.held == 0, u"something is held"_s);
        must(!runner->current.value() && !runner->nextIn.value(), u"something is still shown"_s);
        must(evening_.isStopped ? people <= total : people == total, u"too few or too many"_s);
        must(runner->log().empty() || file() == displayed(), u"the file is not what is shown"_s);
        const std::vector<LogEntry> lines = SendLog(folder, clock()).load(batch);
        must(std::ssize(lines) == evening_.linesBefore + people, u"not everybody has a line"_s);
        qint64 failed = 0;
        for (const LogEntry& each : lines | std::views::drop(evening_.linesBefore)) {
            failed += each.status == statusFailed ? 1 : 0;
            const SentRecord record = recordOf(each.phone);
            must(each.status != statusSent || (record.error == 0 && record.isConclusive()),
                 each.phone + u" was not sent"_s);
        }
        const QString form =
            evening_.isStopped ? u"Stopped after %1 of %2."_s : u"Finished. %1 of %2 processed."_s;
        const QString tail = failed > 0 ? u" %1 failed."_s.arg(failed) : QString();
        must(runner->message.value() == form.arg(people).arg(total) + tail,
             u"the summary says: "_s + runner->message.value());
    }

    SentRecord recordOf(const QString& phone) {
        auto history = MessagesDB::open(home.historyPath()).value();
        return history.lastSent(phone, 0)->value_or(SentRecord());
    }

    std::mt19937 random_;
    QString fault_;
    int count_ = 0;
    Evening evening_;
};

int runMany(unsigned wanted, unsigned first) {
    for (unsigned seed = first; seed < first + wanted; ++seed) {
        const QString fault = RandomRun(seed).firstFault();
        if (!fault.isEmpty()) {
            std::printf("Seed %u: %s.\n", seed, qPrintable(fault));
            return 1;
        }
    }
    std::printf("%u random runs from seed %u on: nothing broken.\n", wanted, first);
    return 0;
}

}  // namespace

int main(int argc, char** argv) {
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    return runMany(arguments.value(1).toUInt(), arguments.value(2).toUInt());
}
