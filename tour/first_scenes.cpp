#include "tour/first_scenes.h"

using namespace Qt::StringLiterals;

namespace velmora {

void firstStart(Stage& stage) {
    const QByteArray history = stage.contentOf(historyPath);
    stage.remove(historyPath);
    stage.open();
    stage.untilShown(u"I Agree"_s);
    stage.show(u"01-terms"_s);
    stage.click(u"I Agree"_s);
    stage.untilShown(u"Not Now"_s);
    // The loop of the drawing is 7 seconds.
    for (const double moment : {0.2, 1.2, 2.3, 4.0, 6.6}) {
        stage.passTo(moment, 7);
        stage.show(u"02-full-disk-access-%1"_s.arg(moment));
    }
    stage.click(u"Not Now"_s);
    stage.until(u"the banner"_s, [&] { return !stage.user().shows(u"Not Now"_s); });
    stage.show(u"03-banner-full-disk-access"_s);
    stage.place(historyPath, history);
}

void noNumber(Stage& stage) {
    stage.editSettings([](AppConfig& config) { config.termsAccepted = u"1"_s; });
    stage.emptyHistory();
    stage.place(messagesPath, "{}");
    stage.open();
    stage.untilShown(u"Open Messages"_s);
    stage.show(u"04-no-number"_s);
    stage.click(u"Choose Later"_s);
    stage.click(u"Open Settings"_s);
    stage.show(u"05-settings-no-number"_s, stage.window(u"Settings"_s));
}

void severalNumbers(Stage& stage) {
    stage.editSettings([](AppConfig& config) { config.termsAccepted = u"1"_s; });
    stage.open();
    stage.untilShown(u"Choose Later"_s);
    stage.show(u"06-several-numbers"_s);
    stage.click(u"Choose Later"_s);
    stage.untilShown(u"Open Settings"_s);
    stage.show(u"07-banner-sending-number"_s);
}

void contactsDenied(Stage& stage) {
    stage.editSettings([](AppConfig& config) { config.termsAccepted = u"1"_s; });
    stage.place(addressBookPath, R"({ "access": "denied" })");
    stage.open();
    stage.untilShown(u"Open System Settings"_s);
    stage.expect(!stage.user().shows(u"Show Me How"_s) && !stage.user().shows(u"Open Settings"_s),
                 u"a banner lies beside the explanation"_s);
    stage.show(u"08-contacts-denied"_s);
}

void emptyStates(Stage& stage) {
    stage.place(addressBookPath, stage.contentOf(addressBookPath)
                                     .replace("\"groups\": [",
                                              "\"groups\": [ { \"identifier\": \"g-none\", "
                                              "\"name\": \"Choir\", \"members\": [] },"));
    stage.openDinner();
    stage.model().selectGroup({});
    stage.untilShown(u"Choose a list"_s);
    stage.show(u"09-no-list"_s);
    stage.click(u"Choir, 0"_s);
    stage.show(u"10-nobody"_s);
    stage.click(u"Friday Dinner, 8"_s);
    stage.click(u"Selected"_s);
    stage.show(u"11-nobody-selected"_s);
    stage.click(u"All"_s);
    stage.click(u"Search people"_s);
    stage.user().type(u"zebra"_s);
    stage.show(u"12-no-matches"_s);
}

}  // namespace velmora
