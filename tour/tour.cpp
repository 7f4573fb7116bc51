// A person's evening with Velmora, from the first start over a run with its troubles to the
// summary, by mouse and keyboard in the real window and in real time: velmora_tour <folder>

#include <QGuiApplication>
#include <algorithm>
#include <cstdio>

#include "tour/stage.h"

using namespace Qt::StringLiterals;

namespace velmora {

namespace {

const LogEntry* entryOf(const QString& name, Stage& stage) {
    const std::vector<LogEntry>& log = stage.model().runner().log();
    const auto found = std::ranges::find(log, name, &LogEntry::name);
    return found == log.end() ? nullptr : &*found;
}

void untilState(Runner::State state, const QString& what, int seconds, Stage& stage) {
    stage.until(what, [&] { return stage.model().runner().state == state; }, seconds);
}

void firstStart(Stage& stage) {
    stage.untilShown(u"I Agree"_s);
    stage.show(u"terms"_s);
    stage.click(u"I Agree"_s);
    stage.untilShown(u"Choose Later"_s);
    stage.show(u"sending-number"_s);
    stage.click(u"(212) 555-0100"_s);
    stage.until(u"the window without a sheet"_s,
                [&] { return !stage.user().shows(u"Choose Later"_s); });
    stage.expect(stage.model().config().senderNumber == u"+12125550100",
                 u"the number was not chosen"_s);
}

void chooseList(Stage& stage) {
    stage.show(u"all-contacts"_s);
    stage.click(u"Friday Dinner, 8"_s);
    stage.expect(stage.model().recipients().size() == 8, u"the list does not hold eight people"_s);
    stage.click(u"Select All"_s);
    // Farid's text is never recorded, which would take the final check two minutes.
    stage.click(u"Select Farid Haddad"_s);
    stage.expect(stage.model().selection().size() == 7, u"Farid is still checked"_s);
    stage.show(u"list"_s);
}

void writeMessage(Stage& stage) {
    stage.click(u"Message"_s);
    stage.user().key(Qt::Key_A, Qt::ControlModifier);
    stage.user().type(u"Hi {first_name}, dinner on Friday at eight? I'm cooking.{custom_note}"_s);
    stage.model().setNote(u"p01"_s, u"Bring the photos!"_s);
    const QString text = stage.model().textFor(stage.model().recipients().front());
    stage.expect(text == u"Hi Ann, dinner on Friday at eight? I'm cooking. Bring the photos!",
                 u"Ann's text is "_s + text);
    stage.show(u"message"_s);
}

void confirmRun(Stage& stage) {
    stage.click(u"Send to 7…"_s);
    stage.untilShown(u"Start Sending"_s);
    stage.show(u"confirm"_s);
    stage.user().key(Qt::Key_Return);
    untilState(Runner::State::running, u"the run"_s, 5, stage);
}

void watchRun(Stage& stage) {
    stage.until(
        u"a wait between two texts"_s,
        [&] { return stage.model().runner().nextIn.value().has_value(); }, 20);
    stage.show(u"running"_s);
    const QString ben = u"Ben Carter"_s;
    stage.until(u"Ben's text"_s, [&] { return entryOf(ben, stage) != nullptr; }, 30);
    const LogEntry& entry = *entryOf(ben, stage);
    stage.expect(entry.service == u"SMS (fallback)" && entry.status == u"sent",
                 u"Ben, who is not on iMessage, was not sent an SMS"_s);
    stage.show(u"sms-fallback"_s);
}

void fixLine(Stage& stage) {
    untilState(Runner::State::paused, u"the pause over the wrong line"_s, 60, stage);
    const QString message = stage.model().runner().message;
    stage.expect(message ==
                     u"Dev Patel got it from (212) 555-0101, not (212) 555-0100. Fix the "
                     "line on your iPhone, then resume.",
                 u"the pause says "_s + message);
    stage.show(u"wrong-line"_s);
    stage.place(messagesPath, stage.contentOf(messagesPath)
                                  .replace(R"("+12125550113": { "line": "+12125550101" },)", ""));
    stage.click(u"Resume"_s);
    untilState(Runner::State::running, u"the run after the pause"_s, 5, stage);
}

void seeSummary(Stage& stage) {
    const QString elena = u"Elena Rossi"_s;
    const auto isSent = [](const LogEntry& entry) { return entry.status == u"sent"; };
    stage.until(u"Elena's late text"_s, [&] { return entryOf(elena, stage) != nullptr; }, 60);
    stage.expect(entryOf(elena, stage)->status == u"sent_unverified",
                 u"Elena's text was confirmed at once"_s);
    stage.show(u"unconfirmed"_s);
    stage.until(
        u"the confirmation of Elena's text"_s, [&] { return isSent(*entryOf(elena, stage)); }, 30);
    untilState(Runner::State::done, u"the end of the run"_s, 120, stage);
    const QString message = stage.model().runner().message;
    stage.expect(message == u"Finished. 7 of 7 processed.", u"the summary says "_s + message);
    stage.expect(std::ranges::all_of(stage.model().runner().log(), isSent),
                 u"not everyone was sent"_s);
    stage.show(u"summary"_s);
}

void sendAgain(Stage& stage) {
    stage.user().key(Qt::Key_R, Qt::ControlModifier);
    stage.until(u"everyone marked as sent"_s, [&] { return stage.model().selection().isEmpty(); });
    stage.show(u"already-sent"_s);
}

void printLog(Stage& stage) {
    SupportFolder support(stage.home().filePath(u".local/share"_s));
    const SystemClock clock;
    const QString log = SendLog(support, clock).logFile(stage.model().runner().batch);
    std::printf("Log: %s\n%s", qPrintable(log), stage.contentOf(log).constData());
}

}  // namespace

}  // namespace velmora

int main(int argc, char** argv) {
    using namespace velmora;
    const QGuiApplication application(argc, argv);
    const QDir folder = Stage::folderForPictures();
    Stage stage(folder, Pace::asInLife);
    stage.open();
    stage.user().window().resize(1240, 740);
    for (auto* part : {firstStart, chooseList, writeMessage, confirmRun, watchRun, fixLine,
                       seeSummary, sendAgain})
        part(stage);
    std::printf("Pictures: %s\n", qPrintable(folder.absolutePath()));
    printLog(stage);
    return 0;
}
