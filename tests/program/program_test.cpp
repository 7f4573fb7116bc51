// The program as the system sees it: started and told to end.

#include <gtest/gtest.h>

#include <QGuiApplication>
#include <QProcess>
#include <csignal>
#include <optional>

#include "core/end_signals.h"
#include "core/system_surroundings.h"
#include "platform/rehearsal/rehearsal_platform.h"
#include "storage/files.h"
#include "support/rehearsal_home.h"
#include "ui/window/main_window.h"

using namespace Qt::StringLiterals;

using namespace velmora;

namespace {

constexpr int soon = 10'000;  // milliseconds, many times of what anything here takes

/// A home in which a run of three finds no record of its texts and so has the first in hand.
class Home : public RehearsalHome {
  public:
    Home() {
        writeContacts(addressBook({person(u"ann"_s, u"Ann"_s, u"Lee"_s, u"212 555 0101"_s),
                                   person(u"bob"_s, u"Bob"_s, u"Ray"_s, u"212 555 0102"_s),
                                   person(u"cid"_s, u"Cid"_s, u"Orr"_s, u"212 555 0103"_s)}));
        writeMessages(R"({"line": "+12125559999", "recordAfter": null})");
        const qint64 before = historyTimestamp(SystemClock().now() + -3600);
        record(
            {.handle = u"+12125550101"_s, .line = u"+12125559999"_s, .date = before, .sent = true});
    }

    [[nodiscard]] QString file(const QString& name) const {
        return applicationSupport() + u"/Velmora/"_s + name;
    }
};

/// A program at work in `home`.
class Started : public QProcess {
  public:
    Started(const Home& home, const QString& program, const QStringList& arguments) {
        QProcessEnvironment surroundings = QProcessEnvironment::systemEnvironment();
        surroundings.remove(u"XDG_DATA_HOME"_s);
        surroundings.insert(u"HOME"_s, home.path());
        surroundings.insert(u"XDG_RUNTIME_DIR"_s, home.path());
        surroundings.insert(u"QT_QPA_PLATFORM"_s, u"offscreen"_s);
        surroundings.insert(u"QT_QUICK_BACKEND"_s, u"software"_s);
        setProcessEnvironment(surroundings);
        setProcessChannelMode(MergedChannels);
        start(program, arguments);
        EXPECT_TRUE(waitForStarted(soon));
    }
    ~Started() override {
        kill();
        waitForFinished(soon);
    }

    void tell(int signal) const { EXPECT_EQ(::kill(static_cast<pid_t>(processId()), signal), 0); }
    /// Whether just that is what it says next.
    bool says(const QByteArray& words) {
        QByteArray heard;
        while (heard.size() < words.size() && (bytesAvailable() > 0 || waitForReadyRead(soon)))
            heard += readAll();
        EXPECT_EQ(heard, words);
        return heard == words;
    }
    /// The code with which it ends by itself, or nothing.
    std::optional<int> ended() {
        if (state() != NotRunning && !waitForFinished(soon))
            return std::nullopt;
        return exitStatus() == NormalExit ? std::optional(exitCode()) : std::nullopt;
    }
};

}  // namespace

// Catches an end that loses the text in hand, or waits for the run or for an answer to an alert.
TEST(Program, ASignalEndsARunInOrder) {
    for (const int signal : {SIGTERM, SIGINT, SIGHUP}) {
        const Home home;
        Started run(home, QCoreApplication::applicationFilePath(), {u"--run"_s, home.path()});
        ASSERT_TRUE(run.says("sent\n"));
        run.tell(signal);
        EXPECT_EQ(run.ended(), 0);
        const QByteArray log = readFile(home.file(u"logs/Friends.csv"_s)).value_or("(no log)");
        EXPECT_EQ(log.count('\n'), 2) << log.constData();
        EXPECT_EQ(log.count("+12125550101,iMessage,,sent_unverified,"), 1) << log.constData();
    }
}

namespace {

/// Sends to everybody in `home` and says when the first text is handed over.
int run(QGuiApplication& application, const QString& home) {
    endAtSignals(application);
    SystemClock clock;
    SystemRandomSource random;
    ThreadBackground background;
    const Platform platform = makeRehearsalPlatform(clock, home);
    AppModel model({.contacts = *platform.contacts,
                    .scripts = *platform.scripts,
                    .accountPreferences = *platform.accountPreferences,
                    .desktop = *platform.desktop},
                   {.clock = clock, .random = random, .background = background},
                   {.home = platform.home, .applicationSupport = platform.applicationSupport});
    MainWindow window(model);
    QObject::connect(&model, &AppModel::bootstrappedChanged, &model, [&model] {
        model.editConfig([](AppConfig& config) { config.quietStart = u"never"_s; });
        model.acceptTerms();
        model.batchName = u"Friends"_s;
        model.loadList();
        model.selectShown();
        model.startRun();
    });
    // Queued, so that it comes when the run waits for the record.
    QObject::connect(
        &model.runner(), &Runner::currentChanged, &model, [] { QTextStream(stdout) << "sent\n"; },
        Qt::QueuedConnection);
    window.show();
    return QGuiApplication::exec();
}

}  // namespace

int main(int argc, char** argv) {
    ::testing::InitGoogleTest(&argc, argv);
    QGuiApplication application(argc, argv);
    const QStringList arguments = QGuiApplication::arguments();
    if (arguments.value(1) == u"--run")
        return run(application, arguments.value(2));
    return RUN_ALL_TESTS();
}
