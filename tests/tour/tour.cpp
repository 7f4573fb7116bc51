#include "tour/tour.h"

#include <QFile>
#include <QTest>
#include <algorithm>
#include <cstdio>

#include "core/files.h"
#include "platform/rehearsal/rehearsal_platform.h"
#include "platform/rehearsal/sample/sample_home.h"

namespace velmora {

using namespace Qt::Literals::StringLiterals;

namespace {

const QString elena = u"Elena Rossi"_s;

[[noreturn]] void fail(const QString& sentence) {
    std::fputs(qPrintable(u"The tour ended early: "_s + sentence + u"\n"_s), stderr);
    std::exit(1);
}

QString preparedHome(const QDir& folder, Moment now) {
    const QString home = folder.filePath(u"home"_s);
    if (auto prepared = prepareSampleHome(home, now); !prepared)
        fail(prepared.error().description);
    return home;
}

QDir freshFolder(const QString& path) {
    QDir folder(path);
    folder.removeRecursively();
    if (!folder.mkpath(u"."_s))
        fail(u"the folder %1 could not be made."_s.arg(path));
    folder.makeAbsolute();
    return folder;
}

// One turn of the event loop, in real time.
void passTime() {
    QCoreApplication::processEvents(QEventLoop::AllEvents, 10);
    QTest::qWait(10);
}

}  // namespace

Tour::Tour(const QString& folder)
    : folder_(freshFolder(folder)),
      platform_(makeRehearsalPlatform(clock_, preparedHome(folder_, clock_.now()))),
      model_(std::make_unique<AppModel>(Doors{*platform_.contacts, *platform_.scripts,
                                              *platform_.accountPreferences, *platform_.desktop},
                                        Surroundings{clock_, random_, background_},
                                        Places{platform_.home, platform_.applicationSupport})),
      user_(std::make_unique<WindowDriver>(*model_, passTime, Motion::animated)) {
    user_->window().resize(1240, 740);
}

void Tour::play() {
    firstStart();
    chooseList();
    writeMessage();
    confirmRun();
    watchRun();
    fixLine();
    seeSummary();
    sendAgain();
    expect(user_->complaints().isEmpty(),
           u"the views complained: "_s + user_->complaints().join(u"; "_s));
    printLog();
}

void Tour::firstStart() {
    waitFor(u"the terms"_s, 10,
            [this] { return model_->bootstrapped && user_->shows(u"I Agree"_s); });
    picture(u"terms"_s);
    click(u"I Agree"_s);
    waitFor(u"the choice of the sending number"_s, 5,
            [this] { return user_->shows(u"Choose Later"_s); });
    picture(u"sending-number"_s);
    click(u"(212) 555-0100"_s);
    waitFor(u"the window without a sheet"_s, 5,
            [this] { return !user_->shows(u"Choose Later"_s); });
    expect(model_->config().senderNumber == u"+12125550100", u"the number was not chosen"_s);
}

void Tour::chooseList() {
    picture(u"all-contacts"_s);
    click(u"Friday Dinner, 8"_s);
    expect(model_->recipients().size() == 8, u"the list does not hold its eight people"_s);
    click(u"Select All"_s);
    expect(model_->selection().size() == 8, u"not everyone was checked"_s);
    // Farid's text is never recorded, which would take the final check two minutes.
    click(u"Select Farid Haddad"_s);
    expect(model_->selection().size() == 7, u"Farid is still checked"_s);
    picture(u"list"_s);
}

void Tour::writeMessage() {
    click(u"Message"_s);
    user_->key(Qt::Key_A, Qt::ControlModifier);
    user_->type(u"Hi {first_name}, dinner on Friday at eight? I'm cooking.{custom_note}"_s);
    expect(model_->currentTemplate().startsWith(u"Hi {first_name}, dinner"),
           u"the message is not what was typed"_s);
    model_->setNote(u"p01"_s, u"Bring the photos!"_s);
    expect(model_->recipients().front().text ==
               u"Hi Ann, dinner on Friday at eight? I'm cooking. Bring the photos!",
           u"Ann's text is "_s + model_->recipients().front().text);
    picture(u"message"_s);
}

void Tour::confirmRun() {
    click(u"Send to 7…"_s);
    waitFor(u"the confirm sheet"_s, 5, [this] { return user_->shows(u"Start Sending"_s); });
    picture(u"confirm"_s);
    user_->key(Qt::Key_Return);
    waitFor(u"the run"_s, 5, [this] { return model_->runner().isActive(); });
}

void Tour::watchRun() {
    waitFor(u"a wait between two texts"_s, 20,
            [this] { return model_->runner().nextIn.value().has_value(); });
    picture(u"running"_s);
    waitFor(u"Ben's text"_s, 30, [this] { return entryOf(u"Ben Carter"_s) != nullptr; });
    expect(entryOf(u"Ben Carter"_s)->service == u"SMS (fallback)" &&
               entryOf(u"Ben Carter"_s)->status == u"sent",
           u"Ben, who is not on iMessage, was not sent an SMS"_s);
    picture(u"sms-fallback"_s);
}

void Tour::fixLine() {
    waitFor(u"the pause over the wrong line"_s, 60,
            [this] { return model_->runner().state == Runner::State::paused; });
    expect(model_->runner().message.value() ==
               u"Dev Patel got it from (212) 555-0101, not (212) 555-0100. Fix the line on your "
               "iPhone, then resume.",
           u"the pause says "_s + model_->runner().message.value());
    picture(u"wrong-line"_s);
    const QString settings = platform_.home + u"/Library/Messages/messages.json"_s;
    QFile file(settings);
    expect(file.open(QIODevice::ReadOnly), u"the settings of Messages cannot be read"_s);
    const QByteArray fixed =
        file.readAll().replace(R"("+12125550113": { "line": "+12125550101" },)", "");
    expect(replaceFile(settings, fixed).has_value(), u"the line could not be fixed"_s);
    click(u"Resume"_s);
    waitFor(u"the run to go on"_s, 5,
            [this] { return model_->runner().state == Runner::State::running; });
}

void Tour::seeSummary() {
    waitFor(u"Elena's late text"_s, 60, [this] { return entryOf(elena) != nullptr; });
    expect(entryOf(elena)->status == u"sent_unverified", u"Elena's text was confirmed at once"_s);
    picture(u"unconfirmed"_s);
    waitFor(u"the confirmation of Elena's text"_s, 30,
            [this] { return entryOf(elena)->status == u"sent"; });
    waitFor(u"the end of the run"_s, 120,
            [this] { return model_->runner().state == Runner::State::done; });
    expect(model_->runner().message.value() == u"Finished. 7 of 7 processed.",
           u"the summary says "_s + model_->runner().message.value());
    expect(std::ranges::all_of(model_->runner().log(),
                               [](const LogEntry& entry) { return entry.status == u"sent"; }),
           u"not everyone was sent"_s);
    picture(u"summary"_s);
}

void Tour::sendAgain() {
    user_->key(Qt::Key_R, Qt::ControlModifier);
    waitFor(u"everyone marked as sent"_s, 5, [this] { return model_->selection().isEmpty(); });
    picture(u"already-sent"_s);
}

void Tour::printLog() const {
    SupportFolder support(platform_.applicationSupport);
    QFile log(SendLog(support, clock_).logFile(model_->runner().batch));
    if (!log.open(QIODevice::ReadOnly))
        fail(u"there is no log."_s);
    std::printf("Pictures: %s\nLog: %s\n%s", qPrintable(folder_.path()), qPrintable(log.fileName()),
                log.readAll().constData());
}

void Tour::expect(bool holds, const QString& what) {
    if (holds)
        return;
    picture(u"failure"_s);
    fail(what + u". See the last picture in "_s + folder_.path());
}

void Tour::waitFor(const QString& what, double seconds, const std::function<bool()>& condition) {
    const double deadline = clock_.uptime() + seconds;
    while (!condition() && clock_.uptime() < deadline)
        user_->settle();
    expect(condition(), what + u" did not come within %1 seconds"_s.arg(seconds));
}

void Tour::click(const QString& name) {
    expect(user_->click(name), u"there is no \"%1\" to click"_s.arg(name));
}

void Tour::picture(const QString& name) {
    // Sheets and highlights finish moving first.
    const double still = clock_.uptime() + 0.4;
    while (clock_.uptime() < still)
        user_->settle();
    const QString path =
        folder_.filePath(u"%1-%2.png"_s.arg(++pictures_, 2, 10, QChar(u'0')).arg(name));
    if (!user_->window().grabWindow().save(path))
        fail(u"the picture %1 could not be written."_s.arg(path));
}

const LogEntry* Tour::entryOf(const QString& name) const {
    const std::vector<LogEntry>& log = model_->runner().log();
    const auto found = std::ranges::find(log, name, &LogEntry::name);
    return found == log.end() ? nullptr : &*found;
}

}  // namespace velmora
