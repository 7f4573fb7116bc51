// Kills a rehearsal at random moments and starts it again under the same run name until everybody
// is done, and so on for as many kills as asked for: velmora_kills <kills> [seed]. Nobody may be
// texted twice, everybody stands in the log, and log and history stay whole.

#include <QCoreApplication>
#include <QFile>
#include <QProcess>
#include <QTextStream>
#include <cstdio>
#include <random>

#include "app/app_model.h"
#include "platform/rehearsal/rehearsal_platform.h"
#include "support/rehearsal_home.h"
#include "support/virtual_surroundings.h"

namespace velmora {

namespace {

const QString line = u"+15550100001"_s;
const QString batch = u"Kills"_s;
constexpr int people = 30;
constexpr int longestEvening = 60;  // milliseconds; an undisturbed one takes about 100

QString phoneOf(int n) {
    return u"+1555020%1"_s.arg(n, 4, 10, QChar(u'0'));
}

/// Keeps a list of its own of what Messages was handed: a rehearsal's Messages ends with it.
class WitnessedScripts final : public ScriptRunner {
  public:
    WitnessedScripts(ScriptRunner& messages, const QString& path)
        : messages_(messages), file_(path) {
        if (!file_.open(QIODevice::WriteOnly | QIODevice::Append | QIODevice::Unbuffered))
            qFatal("The list of texts cannot be opened.");
    }
    [[nodiscard]] ScriptResult run(const QString& source) override {
        const QString service = source.contains(u"service type = SMS") ? u"SMS"_s : u"iMessage"_s;
        file_.write(
            (source.section(u"participant \""_s, 1).section(u'"', 0, 0) + u' ' + service + u'\n')
                .toUtf8());
        return messages_.run(source);
    }

  private:
    ScriptRunner& messages_;
    QFile file_;
};

/// What a user does each evening: opens Velmora, checks who is left, sends under the same name, and
/// resumes every pause. Time flies, so that a kill hits the program at work and not asleep.
int runEvening(const QString& home, double day) {
    VirtualSurroundings world;
    world.clock.shiftWall(day * 86400);
    Platform platform = makeRehearsalPlatform(world.clock, home);
    WitnessedScripts scripts(*platform.scripts, home + u"/handed"_s);
    AppModel model(
        Doors{*platform.contacts, scripts, *platform.accountPreferences, *platform.desktop},
        world.handed(), Places{platform.home, platform.applicationSupport});
    model.bootstrap();
    world.clock.advance(1);
    model.editConfig([](AppConfig& config) {
        config.termsAccepted = currentTermsVersion;
        config.senderNumber = line;
        config.quietEnd = config.quietStart;
        config.quietStart = u"any time"_s;
    });
    model.batchName = batch;
    model.loadList();
    model.selectShown();
    Runner& runner = model.runner();
    QObject::connect(&runner, &Runner::stateChanged, &runner, [&] {
        if (runner.state == Runner::State::paused)
            world.clock.after(5, [&runner] { runner.resume(); });
    });
    model.startRun();
    return world.clock.runUntilIdle() ? 0 : 1;
}

void prepare(const QString& home) {
    std::vector<QByteArray> all;
    std::map<QString, QByteArray> behaviours;
    const std::vector<QByteArray> kinds = {R"({})", R"({"iMessage": {"error": 22}})",
                                           R"({"sentAfter": 30, "deliveredAfter": null})",
                                           R"({"recordAfter": 25, "iMessage": {"error": 22}})"};
    for (int n = 0; n < people; ++n) {
        all.push_back(person(u"p%1"_s.arg(n), u"Person%1"_s.arg(n), {}, phoneOf(n)));
        behaviours[phoneOf(n)] = kinds[static_cast<size_t>(n) % kinds.size()];
    }
    writeTestFile(home + u"/Library/Contacts/contacts.json"_s, addressBook(all));
    writeTestFile(home + u"/Library/Messages/messages.json"_s, messagesOnLine(line, behaviours));
    if (!HistoryWriter::open(messagesHistoryPath(home)))
        qFatal("The history cannot be made.");
}

/// What is wrong with what the evenings left; empty when nothing is.
QString faultOf(const QString& home) {
    QFile file(home + u"/handed"_s);
    const QByteArray handed = file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    const VirtualClock clock(Moment{0});
    SupportFolder folder(home + u"/.local/share"_s);
    SendLog log(folder, clock);
    const std::vector<LogEntry> lines = log.load(batch);
    for (int n = 0; n < people; ++n) {
        const QString phone = phoneOf(n);
        const auto texts = handed.count((phone + u" iMessage"_s).toUtf8());
        const auto fallbacks = handed.count((phone + u" SMS"_s).toUtf8());
        if (texts > 1 || fallbacks > 1 || (fallbacks > 0 && n % 2 == 0))
            return u"%1 got %2 texts and %3 fallbacks"_s.arg(phone).arg(texts).arg(fallbacks);
        if (std::ranges::count(lines, phone, &LogEntry::phone) != 1)
            return phone + u" does not stand in the log once"_s;
    }
    if (!log.isUnderstood(batch))
        return u"the log is not whole"_s;
    auto history = MessagesDB::open(messagesHistoryPath(home));
    const auto check = history ? history->query(u"PRAGMA integrity_check"_s, {})
                               : std::unexpected(history.error());
    if (!check || check->size() != 1 || std::get<QString>(check->front().front()) != u"ok")
        return u"the history is not whole"_s;
    return {};
}

/// Whether the evening was killed before its end. `longest`: the most milliseconds that it may
/// live.
bool isKilledInTheEvening(const QString& home, int day, int milliseconds) {
    QProcess evening;
    evening.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    evening.start(QCoreApplication::applicationFilePath(),
                  {u"evening"_s, home, QString::number(day)});
    if (!evening.waitForStarted())
        qFatal("The rehearsal cannot be started.");
    if (!evening.waitForFinished(milliseconds)) {
        evening.kill();
        evening.waitForFinished(-1);
    }
    if (evening.exitStatus() == QProcess::NormalExit && evening.exitCode() != 0)
        qFatal("The rehearsal ended with an error.");
    return evening.exitStatus() == QProcess::CrashExit;
}

int kill(int wanted, unsigned seed) {
    std::mt19937 random(seed);
    int killed = 0;
    int homes = 0;
    while (killed < wanted) {
        const QTemporaryDir home;
        prepare(home.path());
        ++homes;
        bool done = false;
        for (int day = 0; !done; ++day) {
            // The last evening has all the time that it wants.
            const bool isLast = killed >= wanted;
            const int longest = std::uniform_int_distribution(1, longestEvening)(random);
            const bool isKilled = isKilledInTheEvening(home.path(), day, isLast ? -1 : longest);
            killed += isKilled ? 1 : 0;
            done = !isKilled;
        }
        if (const QString fault = faultOf(home.path()); !fault.isEmpty()) {
            std::printf("After %d kills, seed %u: %s.\n", killed, seed, qPrintable(fault));
            return 1;
        }
    }
    std::printf("%d kills in %d runs of %d people: nobody twice, nobody missing.\n", killed, homes,
                people);
    return 0;
}

}  // namespace

}  // namespace velmora

int main(int argc, char** argv) {
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.value(1) == u"evening")
        return velmora::runEvening(arguments.value(2), arguments.value(3).toDouble());
    const unsigned seed = arguments.size() > 2 ? arguments[2].toUInt() : std::random_device()();
    return velmora::kill(std::max(arguments.value(1).toInt(), 1), seed);
}
