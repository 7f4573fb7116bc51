#include "support/evening.h"

#include <QCoreApplication>
#include <QFile>
#include <QProcess>
#include <algorithm>

#include "app/app_model.h"
#include "platform/rehearsal/rehearsal_platform.h"
#include "platform/rehearsal/script_parser.h"
#include "support/rehearsal_home.h"
#include "support/virtual_surroundings.h"

namespace velmora {

namespace {

const QString line = u"+15550100001"_s;
const QString batch = u"Evenings"_s;

QString phoneOf(int n) {
    return u"+1555020%1"_s.arg(n, 4, 10, QChar(u'0'));
}

}  // namespace

int runEvening(const QString& home, double day) {
    VirtualSurroundings world;
    world.clock.shiftWall(day * 86400);
    Platform platform = makeRehearsalPlatform(world.clock, home);
    WatchedScripts scripts(*platform.scripts);
    // A list that outlives the process: a rehearsal's Messages ends with it.
    QFile handed(home + u"/handed"_s);
    if (!handed.open(QIODevice::WriteOnly | QIODevice::Append | QIODevice::Unbuffered))
        return 1;
    scripts.before = [&handed](const QString& source) {
        const auto text = parseMessageScript(source).value();
        handed.write((text.phone + u' ' + serviceName(text.service) + u'\n').toUtf8());
    };
    AppModel model(
        Doors{*platform.contacts, scripts, *platform.accountPreferences, *platform.desktop},
        world.handed(), Places{platform.home, platform.applicationSupport});
    model.bootstrap();
    world.clock.advance(1);
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

std::optional<QByteArray> playEvening(const QString& home, int day, int milliseconds,
                                      const QStringList& more) {
    QProcess evening;
    evening.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    evening.start(QCoreApplication::applicationFilePath(),
                  QStringList{u"evening"_s, home, QString::number(day)} + more);
    if (!evening.waitForFinished(milliseconds)) {
        evening.kill();
        evening.waitForFinished(-1);
    }
    if (evening.exitStatus() != QProcess::NormalExit || evening.exitCode() != 0)
        return std::nullopt;
    return evening.readAllStandardOutput();
}

void prepareEvenings(const QString& home, int people) {
    const std::vector<QByteArray> kinds = {R"({})", R"({"iMessage": {"error": 22}})",
                                           R"({"sentAfter": 30, "deliveredAfter": null})",
                                           R"({"recordAfter": 25, "iMessage": {"error": 22}})"};
    std::vector<QByteArray> all;
    std::map<QString, QByteArray> behaviours;
    for (int n = 0; n < people; ++n) {
        all.push_back(person(u"p%1"_s.arg(n), u"Person%1"_s.arg(n), {}, phoneOf(n)));
        behaviours[phoneOf(n)] = kinds[static_cast<size_t>(n) % kinds.size()];
    }
    writeTestFile(home + u"/Library/Contacts/contacts.json"_s, addressBook(all));
    writeTestFile(home + u"/Library/Messages/messages.json"_s, messagesOnLine(line, behaviours));
    static_cast<void>(HistoryWriter::open(messagesHistoryPath(home)).value());
    AppConfig config;
    config.termsAccepted = currentTermsVersion;
    config.senderNumber = line;
    config.quietStart = u"any time"_s;
    SupportFolder folder(home + u"/.local/share"_s);
    ConfigStore(folder).save(config);
}

QString faultOfEvenings(const QString& home, int people) {
    const QByteArray handed = readFile(home + u"/handed"_s).value_or(QByteArray());
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
            return phone + u" stands in the log never or twice"_s;
    }
    if (ConfigStore(folder).load().senderNumber != line)
        return u"the settings are not whole"_s;
    if (!log.isUnderstood(batch))
        return u"the log is not whole"_s;
    auto history = MessagesDB::open(messagesHistoryPath(home));
    const std::vector<MessagesDB::Row> whole = {{u"ok"_s}};
    if (!history || history->query(u"PRAGMA integrity_check"_s, {}) != whole)
        return u"the history is not whole"_s;
    return {};
}

}  // namespace velmora
