// The program as the system sees it: started, started again, told to end.

#include <gtest/gtest.h>

#include <QDir>
#include <QFileInfo>
#include <QGuiApplication>
#include <QProcess>
#include <QTest>
#include <csignal>
#include <optional>

#include "core/end_signals.h"
#include "core/system_surroundings.h"
#include "platform/rehearsal/rehearsal_platform.h"
#include "storage/files.h"
#include "storage/home_lock.h"
#include "support/rehearsal_home.h"
#include "ui/window/main_window.h"

using namespace velmora;

namespace {

constexpr int soon = 10'000;  // milliseconds, many times of what anything here takes

/// A home in which a run of two finds no record of its texts and so has the first in hand.
class Home : public RehearsalHome {
  public:
    Home() {
        writeContacts(addressBook({person(u"ann"_s, u"Ann"_s, {}, u"212 555 0101"_s),
                                   person(u"bob"_s, u"Bob"_s, {}, u"212 555 0102"_s)}));
        writeMessages(R"({"line": "+12125559999", "recordAfter": null})");
        const qint64 before = historyTimestamp(SystemClock().now() + -3600);
        record(
            {.handle = u"+12125550101"_s, .line = u"+12125559999"_s, .date = before, .sent = true});
    }

    [[nodiscard]] QString file(const QString& name) const {
        return applicationSupport() + u"/Velmora/"_s + name;
    }
    /// Waits until the start-up has stored what it chose.
    [[nodiscard]] bool isUp() const {
        return QTest::qWaitFor([&] { return QFileInfo::exists(file(u"config.json"_s)); }, soon);
    }
};

/// A program at work in `home`.
class Started : public QProcess {
  public:
    explicit Started(const Home& home, const QString& program = QStringLiteral(VELMORA_PROGRAM),
                     const QStringList& arguments = {}) {
        QProcessEnvironment surroundings = QProcessEnvironment::systemEnvironment();
        surroundings.remove(u"XDG_DATA_HOME"_s);
        surroundings.insert(u"HOME"_s, home.path());
        surroundings.insert(u"XDG_RUNTIME_DIR"_s, home.path());
        surroundings.insert(u"QT_QPA_PLATFORM"_s, u"offscreen"_s);
        surroundings.insert(u"QT_QUICK_BACKEND"_s, u"software"_s);
        // The toolkit keeps fonts until the end, which is no leak of ours.
        surroundings.insert(u"ASAN_OPTIONS"_s, u"detect_leaks=0"_s);
        setProcessEnvironment(surroundings);
        setProcessChannelMode(MergedChannels);
        start(program, arguments);
        EXPECT_TRUE(waitForStarted(soon));
    }
    ~Started() override {
        kill();
        waitForFinished(soon);
    }

    /// What it says next, as long as `words`.
    QByteArray says(const QByteArray& words) {
        QByteArray heard;
        while (heard.size() < words.size() && (bytesAvailable() > 0 || waitForReadyRead(soon)))
            heard += readAll();
        return heard;
    }
    void tell(int signal) const { EXPECT_EQ(::kill(static_cast<pid_t>(processId()), signal), 0); }
    /// The code with which it ends by itself, or nothing.
    std::optional<int> ended() {
        if (state() != NotRunning && !waitForFinished(soon))
            return std::nullopt;
        return exitStatus() == NormalExit ? std::optional(exitCode()) : std::nullopt;
    }
};

// Catches two that work on one home, a second start that ends without a word or shows a window of
// its own, a lock that outlives its process, and one that keeps out another home.
TEST(Program, OneHomeIsOpenOnce) {
    const Home home;
    const Home other;
    Started first(home);
    Started elsewhere(other);
    ASSERT_TRUE(home.isUp() && other.isUp()) << "one of two homes was kept out";
    EXPECT_EQ(Started(home).ended(), 0) << "the first did not answer";
    EXPECT_EQ(first.state(), QProcess::Running);

    first.tell(SIGSTOP);
    Started unheard(home);
    const QByteArray words = "Velmora is open already: please go on in its window.\n";
    EXPECT_EQ(unheard.says(words), words);
    first.tell(SIGCONT);
    unheard.tell(SIGTERM);
    EXPECT_EQ(unheard.ended(), 1);
    EXPECT_FALSE(unheard.readAll().contains(".qml")) << "the view complained";
    first.tell(SIGKILL);
    EXPECT_EQ(first.ended(), std::nullopt);

    EXPECT_TRUE(QFile::remove(home.file(u"config.json"_s)));
    Started again(home);
    EXPECT_TRUE(home.isUp()) << "the lock outlived the process that had it";
    again.tell(SIGINT);
    EXPECT_EQ(again.ended(), 0);
    EXPECT_EQ(QDir(home.file({})).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot),
              (QStringList{u"config.json"_s, u"logs"_s}));
    EXPECT_FALSE(HomeLock(home.file(u"nowhere"_s)).isTaken()) << "what cannot be locked is open";
}

// Catches an end that loses the text in hand, or waits for the run or for an answer to an alert.
TEST(Program, ASignalEndsARunInOrder) {
    for (const int signal : {SIGTERM, SIGINT, SIGHUP}) {
        const Home home;
        Started run(home, QCoreApplication::applicationFilePath(), {u"--run"_s, home.path()});
        ASSERT_EQ(run.says("sent\n"), "sent\n");
        run.tell(signal);
        EXPECT_EQ(run.ended(), 0);
        const QByteArray log = readFile(home.file(u"logs/Friends.csv"_s)).value_or("(no log)");
        EXPECT_EQ(log.count('\n'), 2) << log.constData();
        EXPECT_EQ(log.count("+12125550101,iMessage,,sent_unverified,"), 1) << log.constData();
    }
}

/// Sends to everybody in the home named in `argv` and says when the first text is handed over.
int run(int argc, char** argv) {
    QGuiApplication application(argc, argv);
    endAtSignals(application);
    SystemClock clock;
    SystemRandomSource random;
    ThreadBackground background;
    const Platform platform = makeRehearsalPlatform(clock, QString::fromLocal8Bit(argv[2]));
    AppModel model(Doors{*platform.contacts, *platform.scripts, *platform.accountPreferences,
                         *platform.desktop},
                   {clock, random, background}, {platform.home, platform.applicationSupport});
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
    if (argc == 3 && argv[1] == "--run"_ba)
        return run(argc, argv);
    const QCoreApplication application(argc, argv);
    return RUN_ALL_TESTS();
}
