// Every state of every view, each as pictures in light and dark: velmora_gallery <folder>. Where
// the display is dense (QT_SCALE_FACTOR=2), in one size; else in the smallest and the first one.

#include <QGuiApplication>
#include <cstdio>

#include "tour/first_scenes.h"
#include "tour/stage.h"

using namespace Qt::StringLiterals;

namespace velmora {

namespace {

bool isPaused(Stage& stage) {
    return stage.model().runner().state == Runner::State::paused;
}

void lists(Stage& stage) {
    stage.openDinner();
    stage.click(u"All Contacts, 41"_s);
    stage.click(u"Select All"_s);
    stage.show(u"13-all-contacts"_s);
    stage.user().key(Qt::Key_End);
    stage.click(u"Family, 8"_s);
    stage.click(u"Select Nana"_s);
    stage.show(u"14-family"_s);
    stage.click(u"Neighbours, 9"_s);
    stage.click(u"Select All"_s);
    stage.show(u"15-neighbours"_s);
    stage.click(u"Friday Dinner, 8"_s);
    stage.click(u"Select Ann Lee"_s);
    stage.click(u"Select Ben Carter"_s);
    stage.click(u"Add note"_s);
    stage.user().type(u"And your guitar, please"_s);
    stage.show(u"16-notes"_s);
    stage.click(u"Selected"_s);
    stage.click(u"Search people"_s);
    stage.user().type(u"carter"_s);
    stage.show(u"17-search"_s);
}

void message(Stage& stage) {
    stage.openDinner();
    stage.click(u"Select All"_s);
    stage.model().setCurrentTemplate(
        u"Hi {first_name}, dinner on Friday at eight? I'm cooking.{custom_note}\n---\n"
        "{first_name}, are you free on Friday? Dinner is at eight, at mine.{custom_note}\n---\n"
        "Dinner at mine on Friday, {first_name}? Eight o'clock.{custom_note}"_s);
    stage.show(u"18-versions"_s);
    stage.click(u"Insert"_s);
    stage.show(u"19-insert-menu"_s);
    stage.user().key(Qt::Key_Escape);
    stage.click(u"(212) 555-0100"_s, QAccessible::ButtonMenu);
    stage.show(u"20-send-from-menu"_s);
    stage.user().key(Qt::Key_Escape);
    stage.click(u"People"_s, QAccessible::ButtonMenu);
    stage.show(u"21-people-menu"_s);
    stage.user().key(Qt::Key_Escape);
    stage.click(u"Send to 8…"_s);
    stage.untilShown(u"Start Sending"_s);
    stage.show(u"22-confirm"_s);
    stage.user().key(Qt::Key_Escape);
    stage.click(u"Clear All"_s);
    stage.user().key(Qt::Key_Return, Qt::ControlModifier);
    stage.untilShown(u"OK"_s);
    stage.show(u"23-alert"_s);
}

void run(Stage& stage) {
    stage.startDinner();
    stage.until(u"a text under way"_s,
                [&] { return stage.model().runner().current.value().has_value(); });
    stage.show(u"24-sending"_s);
    stage.model().openSettings();
    stage.show(u"25-settings-during-a-run"_s, stage.window(u"Settings"_s));
    stage.closeWindow(u"Settings"_s);
    stage.until(u"a wait"_s, [&] {
        return stage.model().runner().log().size() > 1 && stage.model().runner().nextIn.value();
    });
    stage.show(u"26-waiting"_s);
    stage.until(u"the wrong line"_s, [&] { return isPaused(stage); });
    stage.show(u"27-paused-wrong-line"_s);
    stage.click(u"Resume"_s);
    stage.until(u"the end"_s, [&] { return stage.model().runner().state == Runner::State::done; });
    stage.show(u"29-done"_s);
    stage.user().key(Qt::Key_R, Qt::ControlModifier);
    stage.until(u"the reload"_s, [&] { return stage.model().selection().isEmpty(); });
    stage.show(u"30-already-sent"_s);
}

void stopping(Stage& stage) {
    stage.startDinner();
    stage.until(u"a wait"_s, [&] {
        return stage.model().runner().done.value() == 2 && stage.model().runner().nextIn.value();
    });
    stage.place(messagesPath, R"({ "recordAfter": 15 })");
    stage.until(u"a text under way"_s,
                [&] { return stage.model().runner().current.value().has_value(); });
    stage.click(u"Stop"_s);
    stage.untilShown(u"Stopping…"_s);
    stage.show(u"28-stopping"_s);
}

void pausedForHours(Stage& stage) {
    stage.editSettings([](AppConfig& config) {
        config.quietStart = u"18:00"_s;
        config.quietEnd = u"21:30"_s;
    });
    stage.startDinner();
    stage.until(u"the pause"_s, [&] { return isPaused(stage); });
    stage.show(u"31-paused-hours"_s);
}

void pausedForFailures(Stage& stage) {
    stage.place(messagesPath,
                R"({ "scriptError": "Messages got an error: Can't get participant." })");
    stage.startDinner();
    stage.until(u"the pause"_s, [&] { return isPaused(stage); });
    stage.show(u"32-paused-failures"_s);
}

void settings(Stage& stage) {
    stage.openDinner();
    stage.model().testPhone = u"(212) 555-0110"_s;
    stage.model().testResult =
        u"Sent by iMessage from (212) 555-0100. That matches your sending number."_s;
    stage.model().openSettings();
    stage.show(u"33-settings"_s, stage.window(u"Settings"_s));
    stage.model().setSenderNumber(u"+13125550199"_s);
    stage.show(u"34-settings-number-gone"_s, stage.window(u"Settings"_s));
    stage.closeWindow(u"Settings"_s);
    stage.click(u"Velmora"_s, QAccessible::ButtonMenu);
    stage.click(u"About Velmora"_s, QAccessible::MenuItem);
    stage.show(u"35-about"_s, stage.window(u"About Velmora"_s));
}

// Numbers with a comma, and a clock of twice twelve hours.
void otherLanguage(Stage& stage) {
    const QLocale before;
    QLocale::setDefault(QLocale(u"el_GR"_s));
    stage.startDinner();
    stage.until(u"the wrong line"_s, [&] { return isPaused(stage); });
    stage.show(u"36-log-in-another-language"_s);
    stage.click(u"Stop"_s);
    stage.until(u"the end"_s, [&] { return stage.model().runner().state == Runner::State::done; });
    stage.model().editConfig([](AppConfig& config) { config.delayMin = 2.5; });
    stage.model().openSettings();
    stage.show(u"37-settings-in-another-language"_s, stage.window(u"Settings"_s));
    stage.closeWindow(u"Settings"_s);
    QLocale::setDefault(before);
}

// And a window far wider than its content.
void rightToLeft(Stage& stage) {
    stage.place(addressBookPath, stage.contentOf(addressBookPath)
                                     .replace("\"Friday Dinner\"", "\"ארוחת שישי\"")
                                     .replace("\"Chloé\"", "\"נועה\"")
                                     .replace("\"Martin\"", "\"מרטין\""));
    stage.openDinner();
    stage.click(u"Select All"_s);
    stage.model().setCurrentTemplate(
        u"היי {first_name}, נפגשים לארוחת ערב ביום שישי בשמונה אצלי? אני מבשל.{custom_note}"_s);
    stage.model().setNote(u"p02"_s, u"תביאו את התמונות!"_s);
    stage.show(u"38-right-to-left"_s);
    stage.model().requestRun();
    stage.untilShown(u"Start Sending"_s);
    stage.show(u"39-confirm-right-to-left"_s);
    stage.user().key(Qt::Key_Escape);
    stage.showWide(u"40-very-wide"_s);
}

}  // namespace

}  // namespace velmora

int main(int argc, char** argv) {
    using namespace velmora;
    const QGuiApplication application(argc, argv);
    QGuiApplication::setApplicationVersion(QStringLiteral(VELMORA_VERSION));
    const QDir folder = Stage::folderForPictures();
    for (auto* scene :
         {firstStart, noNumber, severalNumbers, contactsDenied, emptyStates, lists, message, run,
          stopping, pausedForHours, pausedForFailures, settings, otherLanguage, rightToLeft}) {
        Stage stage(folder);
        scene(stage);
    }
    std::printf("Pictures: %s\n", qPrintable(folder.path()));
    return 0;
}
