#include "ui/main_window_model.h"

#include "app/app_home.h"
#include "ui/menu_commands.h"

namespace velmora {

namespace {

using Banner = MainWindowModel::Banner;
using Sheet = MainWindowModel::Sheet;

using MainWindowModelTest = AppHome;

// Catches a title or a count that lags behind the model, or a zero shown where there is nothing to
// count.
TEST_F(MainWindowModelTest, HeadNamesTheListAndCountsItsPeople) {
    friends({person(u"ann"_s, u"Ann"_s, u"Lee"_s, u"212 555 0101"_s),
             person(u"bob"_s, u"Bob"_s, u"Stone"_s, u"212 555 0102"_s),
             person(u"cid"_s, u"Cid"_s, u"Ray"_s)});
    AppModel& app = withFriends();
    const MainWindowModel window(app);
    int changes = 0;
    QObject::connect(&window, &MainWindowModel::changed, [&] { ++changes; });
    EXPECT_EQ(window.title(), u"Friends");
    EXPECT_EQ(window.subtitle(), u"0 of 3 selected \u00B7 1 need attention")
        << "Cid has no number; Bob's new thread needs no attention";
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
    MainWindowModel window(app);
    EXPECT_EQ(window.banner(), Banner::none);
    EXPECT_TRUE(window.showsList());
    app.editConfig([](AppConfig& config) { config.senderNumber.clear(); });
    app.skippedSenderSetup = true;
    EXPECT_EQ(window.banner(), Banner::sendingNumber) << "it stays after the sheet is put off";
    int settings = 0;
    QObject::connect(&window, &MainWindowModel::settingsRequested, [&] { ++settings; });
    window.followBanner();
    EXPECT_EQ(settings, 1);
    app.dbOK = false;
    EXPECT_EQ(window.banner(), Banner::fullDiskAccess);
    window.followBanner();
    EXPECT_TRUE(app.showingFDAHelp);

    app.selectGroup({});
    EXPECT_FALSE(window.showsList());
    EXPECT_EQ(window.emptyTitle() + window.emptyButton(), u"Choose a list"_s);
    app.contactsAllowed = false;
    EXPECT_EQ(window.banner(), Banner::none);
    EXPECT_EQ(window.emptyTitle(), u"Velmora can't read your Contacts");
    EXPECT_EQ(window.emptyButton(), u"Open System Settings");
}

// Catches a first-use sheet out of its turn, or two at once.
TEST_F(MainWindowModelTest, SheetsComeInTheirOrder) {
    ASSERT_TRUE(QFile::rename(home.historyPath(), home.historyPath() + u'~'));
    AppModel& app = open();
    MainWindowModel window(app);
    app.showingFDAHelp = true;
    EXPECT_EQ(window.sheet(), Sheet::terms) << "nothing comes before the terms";
    app.showingFDAHelp = false;
    app.acceptTerms();
    EXPECT_EQ(window.sheet(), Sheet::none) << "the rest waits for the start-up";
    app.bootstrap();
    world.clock.advance(1);
    EXPECT_EQ(window.sheet(), Sheet::fullDiskAccessHelp);
    app.skippedFDAHelp = true;
    EXPECT_EQ(window.sheet(), Sheet::none);
    app.showingFDAHelp = true;
    EXPECT_EQ(window.sheet(), Sheet::fullDiskAccessHelp) << "asked for again";

    thread(u"+12125550102"_s, myOtherLine);
    ASSERT_TRUE(QFile::rename(home.historyPath() + u'~', home.historyPath()));
    window.applicationActivated();
    EXPECT_EQ(window.sheet(), Sheet::senderSetup) << "two numbers, none chosen";
    app.setSenderNumber(myLine);
    EXPECT_EQ(window.sheet(), Sheet::none);
}

// Catches a second start-up when the window is hidden and shown again; a look at the history that
// was not needed.
TEST_F(MainWindowModelTest, StartsOnceAndLooksAgainOnlyWhenNeeded) {
    AppModel& app = open();
    MainWindowModel window(app);
    for (const bool first : {true, false}) {
        app.bootstrapped = false;
        window.windowShown();
        world.clock.advance(1);
        EXPECT_EQ(app.bootstrapped.value(), first);
    }
    for (const bool readable : {true, false}) {
        app.numbersCheckedAt = std::nullopt;
        app.dbOK = readable;
        window.applicationActivated();
        EXPECT_EQ(app.numbersCheckedAt.value().has_value(), !readable);
    }
}

// Catches a shortcut that moved, an item that does another's work, and commands that reach under
// the alert or a sheet.
TEST_F(MainWindowModelTest, MenusHoldTheCommandsThatCoversDisable) {
    AppModel& app = withFriends();
    MainWindowModel window(app);
    MenuCommands commands(app);
    QStringList people;
    for (const QVariant& entry : commands.menus()[3].value<Menu>().entries) {
        const auto item = entry.value<MenuEntry>();
        if (!item.separator())
            people.append(item.text + u' ' + item.keys());
    }
    EXPECT_EQ(people, (QStringList{u"Select All Ctrl+Shift+A"_s, u"Clear Selection Ctrl+Shift+D"_s,
                                   u"Reload from Contacts Ctrl+R"_s, u"Send\u2026 Ctrl+Return"_s}));
    commands.run(MenuCommands::Command::selectShown);
    EXPECT_EQ(app.selection().size(), 3);
    commands.run(MenuCommands::Command::clearShown);
    EXPECT_EQ(app.selection().size(), 0);
    friends({person(u"ann"_s, u"Ann"_s, u"Lee"_s, u"212 555 0101"_s)});
    commands.run(MenuCommands::Command::reload);
    EXPECT_EQ(app.recipients().size(), 1U);
    EXPECT_TRUE(window.commandsEnabled());
    commands.run(MenuCommands::Command::send);
    world.clock.advance(1);
    EXPECT_EQ(window.alertText(), u"Select at least one person.");
    EXPECT_FALSE(window.commandsEnabled());
    window.dismissAlert();
    EXPECT_TRUE(window.commandsEnabled());
    app.confirmingRun = true;
    EXPECT_FALSE(window.commandsEnabled());
}

}  // namespace

}  // namespace velmora
