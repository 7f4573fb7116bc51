#include "ui/main_window_model.h"

#include "app/app_home.h"
#include "ui/menu_commands.h"

namespace velmora {

namespace {

using Banner = MainWindowModel::Banner;
using Sheet = MainWindowModel::Sheet;

class MainWindowModelTest : public AppHome {
  protected:
    static Sheet sheetOf(AppModel& of) { return MainWindowModel(of).sheet(); }
    static Banner bannerOf(AppModel& of) { return MainWindowModel(of).banner(); }

    void hideHistory() {
        ASSERT_TRUE(QFile::rename(home.historyPath(), home.historyPath() + u'~'));
    }
    void showHistory() {
        ASSERT_TRUE(QFile::rename(home.historyPath() + u'~', home.historyPath()));
    }
};

// Catches a title or a count that lags behind the model, or a zero shown where there is nothing to
// count.
TEST_F(MainWindowModelTest, HeadNamesTheListAndCountsItsPeople) {
    AppModel& app = open();
    const MainWindowModel window(app);
    int changes = 0;
    QObject::connect(&window, &MainWindowModel::changed, [&] { ++changes; });
    EXPECT_EQ(window.title(), u"Velmora");
    EXPECT_EQ(window.subtitle(), u"");

    friends({person(u"ann"_s, u"Ann"_s, u"Lee"_s, u"212 555 0101"_s),
             person(u"bob"_s, u"Bob"_s, u"Stone"_s, u"212 555 0102"_s),
             person(u"cid"_s, u"Cid"_s, u"Ray"_s)});
    app.bootstrap();
    world.clock.advance(1);
    app.selectGroup(u"friends"_s);
    EXPECT_EQ(window.title(), u"Friends");
    EXPECT_EQ(window.subtitle(), u"0 of 3 selected \u00B7 1 need attention")
        << "Cid has no number; Bob's new thread needs no attention";

    changes = 0;
    app.setSelected(u"ann"_s, true);
    EXPECT_GE(changes, 1);
    EXPECT_EQ(window.subtitle(), u"1 of 3 selected \u00B7 1 need attention");

    friends({});
    app.loadList();
    EXPECT_EQ(window.subtitle(), u"");
}

// Catches a banner beside the Contacts explanation, or the wrong one of the two.
TEST_F(MainWindowModelTest, BannerAndColumnSayWhatIsMissing) {
    AppModel& app = started();
    EXPECT_EQ(app.config().senderNumber, myLine);
    EXPECT_EQ(bannerOf(app), Banner::none);
    EXPECT_TRUE(MainWindowModel(app).showsList());

    app.editConfig([](AppConfig& config) { config.senderNumber.clear(); });
    EXPECT_EQ(bannerOf(app), Banner::sendingNumber);
    app.skippedSenderSetup = true;
    EXPECT_EQ(bannerOf(app), Banner::sendingNumber) << "it stays after the sheet is put off";
    int settings = 0;
    MainWindowModel window(app);
    QObject::connect(&window, &MainWindowModel::settingsRequested, [&] { ++settings; });
    window.followBanner();
    EXPECT_EQ(settings, 1);

    app.dbOK = false;
    EXPECT_EQ(bannerOf(app), Banner::fullDiskAccess);
    window.followBanner();
    EXPECT_TRUE(app.showingFDAHelp);

    app.selectGroup({});
    EXPECT_FALSE(window.showsList());
    EXPECT_EQ(window.emptyTitle(), u"Choose a list");
    EXPECT_EQ(window.emptyButton(), u"");

    app.selectGroup(allContactsID);
    app.contactsAllowed = false;
    EXPECT_EQ(bannerOf(app), Banner::none);
    EXPECT_FALSE(window.showsList());
    EXPECT_EQ(window.emptyTitle(), u"Velmora can't read your Contacts");
    EXPECT_EQ(window.emptyButton(), u"Open System Settings");
}

// Catches a first-use sheet out of its turn, or two at once.
TEST_F(MainWindowModelTest, SheetsComeInTheirOrder) {
    hideHistory();
    AppModel& app = open();
    EXPECT_EQ(sheetOf(app), Sheet::terms);
    app.showingFDAHelp = true;
    EXPECT_EQ(sheetOf(app), Sheet::terms) << "nothing comes before the terms";
    app.showingFDAHelp = false;
    app.acceptTerms();
    EXPECT_EQ(sheetOf(app), Sheet::none) << "the rest waits for the start-up";

    app.bootstrap();
    world.clock.advance(1);
    EXPECT_EQ(sheetOf(app), Sheet::fullDiskAccessHelp);
    app.skippedFDAHelp = true;
    EXPECT_EQ(sheetOf(app), Sheet::none);
    app.showingFDAHelp = true;
    EXPECT_EQ(sheetOf(app), Sheet::fullDiskAccessHelp) << "asked for again";

    thread(u"+12125550102"_s, myOtherLine);
    showHistory();
    MainWindowModel(app).applicationActivated();
    EXPECT_TRUE(app.dbOK);
    EXPECT_EQ(sheetOf(app), Sheet::senderSetup) << "two numbers, none chosen";
    app.setSenderNumber(myLine);
    EXPECT_EQ(sheetOf(app), Sheet::none);
}

// Catches commands that reach under a sheet or the alert.
TEST_F(MainWindowModelTest, CoversDisableTheCommands) {
    AppModel& app = withFriends();
    MainWindowModel window(app);
    EXPECT_TRUE(window.commandsEnabled());
    app.requestRun();
    world.clock.advance(1);
    EXPECT_TRUE(window.alertShown());
    EXPECT_EQ(window.alertText(), u"Select at least one person.");
    EXPECT_FALSE(window.commandsEnabled());
    window.dismissAlert();
    EXPECT_FALSE(app.alert.value().has_value());
    app.confirmingRun = true;
    EXPECT_EQ(window.sheet(), Sheet::confirm);
    EXPECT_FALSE(window.commandsEnabled());
}

// Catches a second start-up when the window is hidden and shown again; a look at the history that
// was not needed.
TEST_F(MainWindowModelTest, StartsOnceAndLooksAgainOnlyWhenNeeded) {
    AppModel& app = open();
    MainWindowModel window(app);
    window.windowShown();
    world.clock.advance(1);
    EXPECT_TRUE(app.bootstrapped);
    app.bootstrapped = false;
    window.windowShown();
    world.clock.advance(1);
    EXPECT_FALSE(app.bootstrapped);

    app.numbersCheckedAt = std::nullopt;
    window.applicationActivated();
    EXPECT_FALSE(app.numbersCheckedAt.value().has_value());
    app.dbOK = false;
    window.applicationActivated();
    EXPECT_TRUE(app.numbersCheckedAt.value().has_value());
}

// Catches a shortcut that moved, an item that does another's work, or one missing from its menu.
TEST_F(MainWindowModelTest, MenusHoldTheCommands) {
    AppModel& app = withFriends();
    MenuCommands commands(app);
    QStringList titles;
    QHash<QString, QString> keys;
    for (const QVariant& each : commands.menus()) {
        const auto menu = each.value<Menu>();
        titles.append(menu.title);
        for (const QVariant& entry : menu.entries) {
            const auto item = entry.value<MenuEntry>();
            keys.insert(menu.title + u'/' + item.text, item.keys());
        }
    }
    EXPECT_EQ(titles, QStringList({u"Velmora"_s, u"File"_s, u"Edit"_s, u"People"_s, u"Window"_s,
                                   u"Help"_s}));
    EXPECT_EQ(keys[u"People/Select All"_s], u"Ctrl+Shift+A");
    EXPECT_EQ(keys[u"People/Clear Selection"_s], u"Ctrl+Shift+D");
    EXPECT_EQ(keys[u"People/Reload from Contacts"_s], u"Ctrl+R");
    EXPECT_EQ(keys[u"People/Send\u2026"_s], u"Ctrl+Return");
    EXPECT_EQ(keys[u"Velmora/Settings\u2026"_s], u"Ctrl+,");
    EXPECT_TRUE(keys.contains(u"Help/Terms of Use"_s));
    EXPECT_TRUE(keys.contains(u"Help/Pacing and Safeguards"_s));
    EXPECT_FALSE(keys.contains(u"File/New Window"_s));

    commands.run(MenuCommands::Command::selectShown);
    EXPECT_EQ(app.selection().size(), 3);
    commands.run(MenuCommands::Command::clearShown);
    EXPECT_EQ(app.selection().size(), 0);
    friends({person(u"ann"_s, u"Ann"_s, u"Lee"_s, u"212 555 0101"_s)});
    commands.run(MenuCommands::Command::reload);
    EXPECT_EQ(app.recipients().size(), 1U);
    commands.run(MenuCommands::Command::send);
    world.clock.advance(1);
    EXPECT_EQ(app.alert.value(), u"Select at least one person."_s);
}

}  // namespace

}  // namespace velmora
