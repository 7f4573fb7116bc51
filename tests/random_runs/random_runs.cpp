// Runs with random people, faults, settings, stops and resumes on the virtual clock, each from a
// seed of its own, judged by what Messages was handed and what the files hold, and by nothing that
// the runner says of itself: velmora_random_runs <how many> [first seed].

#include <QCoreApplication>
#include <cstdio>
#include <random>

#include "core/system_surroundings.h"
#include "platform/rehearsal/script_parser.h"
#include "sending/sending_world.h"

using namespace Qt::StringLiterals;

using namespace velmora;

namespace {

struct HandedText {
    double uptime = 0;
    QString phone;
    Service service = Service::iMessage;
};

/// What Messages does with one person's texts; whether it records an error for an iMessage.
struct Behaviour {
    const char* json;
    bool failsIMessage;
};
constexpr std::array<Behaviour, 11> behaviours = {{
    {R"({})", false},
    {R"({"iMessage": {"error": 22}})", true},
    {R"({"error": 22})", true},
    {R"({"scriptError": "Messages got an error."})", false},
    {R"({"SMS": {"scriptError": "No SMS."}, "iMessage": {"error": 3}})", true},
    {R"({"sentAfter": 50, "deliveredAfter": null})", false},
    {R"({"recordAfter": 21, "error": 22})", true},
    {R"({"iMessage": {"recordAfter": 26, "error": 22}})", true},
    {R"({"recordAfter": null})", false},
    {R"({"line": "+15550100002"})", false},
    {R"({"line": "me@example.com"})", false},
}};

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
            const Behaviour& one = behaviours[static_cast<size_t>(often(40) ? 0 : upTo(10))];
            people[n] = one.json;
            failsIMessage_[phone(n)] = one.failsIMessage;
            const QString status = stored[upTo(2)];
            if (often(15))
                store(n, status, 9e5);
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
        paused_ = true;
        const bool resumes = often(75);
        const bool asksForHours = runner->message.value().startsWith(u"Outside");
        must(!asksForHours || !mayIgnoreHours_, u"the hours are asked for twice"_s);
        clock().after(seconds(90), [this, resumes, asksForHours] {
            mayIgnoreHours_ = mayIgnoreHours_ || (resumes && asksForHours);
            resumes ? runner->resume() : stop();
        });
    }
    void stop() {
        if (runner->isActive())
            stoppedAfter_ = handed_.size();
        runner->stop();
    }

    void judgeText(const QString& source) {
        const auto text = parseMessageScript(source);
        must(text.has_value(), u"a script is not understood"_s);
        if (!text)
            return;
        const HandedText now{clock().uptime(), text->phone, text->service};
        const auto isSame = [&now](const HandedText& other) {
            return other.phone == now.phone && other.service == now.service;
        };
        must(std::ranges::none_of(handed_, isSame), now.phone + u" is texted twice"_s);
        must(!sentBefore_.contains(now.phone), now.phone + u" was sent before"_s);
        const std::vector<LogEntry> lines = SendLog(folder, clock()).load(batch);
        const auto own = std::ranges::find(lines.begin() + linesBefore_, lines.end(), now.phone,
                                           &LogEntry::phone);
        must(own != lines.end() && own->status == statusUnverified,
             now.phone + u" is texted before the log says so"_s);
        const bool inHand = !handed_.empty() && handed_.back().phone == now.phone;
        must(!stoppedAfter_ || inHand, u"a text leaves after the stop"_s);
        must(activities.held == 1, u"the computer may go to sleep"_s);
        start(1);  // which is to have no effect
        if (now.service == Service::sms) {
            must(failsIMessage_[now.phone], now.phone + u" gets an SMS for nothing"_s);
        } else {
            must(mayIgnoreHours_ || !isOutsideSendingHours(config, clock().now()), u"it is late"_s);
            const double least = std::min(config.delayMin, config.delayMax);
            must(last_ < 0 || now.uptime - last_ >= least, u"a wait is too short"_s);
            const double most = std::max(config.delayMin, config.delayMax) + 1 +
                                (2 + 2 * count_) * (config.verifyWait + 2);
            must(last_ < 0 || paused_ || now.uptime - last_ <= most, u"a wait is too long"_s);
            must(std::ssize(runner->log()) == linesBefore_ + people_,
                 u"a line is shown before its outcome"_s);
            last_ = now.uptime;
            paused_ = false;
            ++people_;
        }
        handed_.push_back(now);
    }

    void playEvening() {
        handed_.clear();
        stoppedAfter_.reset();
        last_ = -1;
        people_ = 0;
        mayIgnoreHours_ = paused_ = false;
        runner->batch = batch;
        runner->reloadLog();
        sentBefore_ = SendLog(folder, clock()).alreadySent(batch);
        linesBefore_ = std::ssize(runner->log());
        qint64 left = 0;
        for (int n = 0; n < count_; ++n)
            left += sentBefore_.contains(phone(n)) ? 0 : 1;
        total_ = std::min(left, std::max<qint64>(config.maxPerRun, 1));
        start(count_);
        if (often(25))
            clock().after(seconds(200), [this] { stop(); });
        must(clock().runUntilIdle(1e5), u"the run does not end"_s);
        judgeEnd();
        clock().advance(86400);
    }

    void judgeEnd() {
        must(runner->state == State::done && activities.held == 0, u"something is held"_s);
        must(!runner->current.value() && !runner->nextIn.value(), u"something is still shown"_s);
        must(stoppedAfter_ ? people_ <= total_ : people_ == total_, u"too few or too many"_s);
        must(runner->log().empty() || file() == displayed(),
             u"the file is not the log that is shown"_s);
        const std::vector<LogEntry> lines = SendLog(folder, clock()).load(batch);
        must(std::ssize(lines) == linesBefore_ + people_, u"not everybody has a line"_s);
        qint64 failed = 0;
        for (auto n = static_cast<size_t>(linesBefore_); n < lines.size(); ++n) {
            failed += lines[n].status == statusFailed ? 1 : 0;
            must(lines[n].status != statusSent || wasSent(lines[n].phone),
                 lines[n].phone + u" was not sent"_s);
        }
        const QString form =
            stoppedAfter_ ? u"Stopped after %1 of %2."_s : u"Finished. %1 of %2 processed."_s;
        const QString tail = failed > 0 ? u" %1 failed."_s.arg(failed) : QString();
        must(runner->message.value() == form.arg(people_).arg(total_) + tail,
             u"the summary says: "_s + runner->message.value());
    }

    bool wasSent(const QString& phone) {
        auto history = MessagesDB::open(home.historyPath());
        const auto record = history->lastSent(phone, 0);
        return record && *record && (*record)->error == 0 && (*record)->isConclusive();
    }

    std::mt19937 random_;
    QString fault_;
    int count_ = 0;
    std::map<QString, bool> failsIMessage_;
    QSet<QString> sentBefore_;
    std::vector<HandedText> handed_;
    std::optional<size_t> stoppedAfter_;
    bool mayIgnoreHours_ = false;
    bool paused_ = false;
    double last_ = -1;
    qint64 people_ = 0;
    qint64 total_ = 0;
    qint64 linesBefore_ = 0;
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
