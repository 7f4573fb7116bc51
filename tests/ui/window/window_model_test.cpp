#include "ui/window/main_window_model.h"

#include <QGuiApplication>
#include <QSignalSpy>

#include "app/app_home.h"
#include "ui/look/drawn_look.h"
#include "ui/look/system_appearance.h"
#include "ui/window/main_window.h"
#include "ui/window/presentation.h"

using namespace velmora;

using WindowModels = AppHome;

// Catches a count that lags behind the model, or a zero shown where there is nothing to count.
TEST_F(WindowModels, CountsFollowTheAddressBook) {
    friends({ann, bob, person(u"cid"_s, u"Cid"_s, u"Ray"_s)});
    withFriends();
    const MainWindowModel window(*model);
    const QSignalSpy changes(&window, &MainWindowModel::changed);
    model->setSelected(u"ann"_s, true);
    EXPECT_GE(changes.size(), 1);
    EXPECT_EQ(window.subtitle(), u"1 of 3 selected \u00B7 1 need attention")
        << "Cid has no number; Bob's new thread needs no attention";
    friends({});
    model->loadList();
    EXPECT_EQ(window.subtitle(), u"");
}

// Catches a second start-up when the window is hidden and shown again, a look at the history that
// was not needed, and a window left in the Dock, or a large one made small.
TEST_F(WindowModels, StartOnceAndComeBackAsTheyWere) {
    MainWindowModel window(open());
    for (const bool first : {true, false}) {
        model->bootstrapped = false;
        window.windowShown();
        world.clock.advance(1);
        EXPECT_EQ(model->bootstrapped.value(), first);
    }
    for (const bool readable : {true, false}) {
        model->numbersCheckedAt = std::nullopt;
        model->dbOK = readable;
        window.applicationActivated();
        EXPECT_EQ(model->numbersCheckedAt.value().has_value(), !readable);
    }
    MainWindow main(*model);
    main.show();
    main.window().setWindowStates(Qt::WindowMaximized | Qt::WindowMinimized);
    main.bringToFront();
    EXPECT_EQ(main.window().windowStates(), Qt::WindowMaximized);
}

// Catches a run that holds up the end of the computer's session, or one that anybody may close.
TEST_F(WindowModels, ARunIsClosedOnlyByTheEndOfTheSession) {
    withFriends().selectShown();
    model->startRun();
    MainWindowModel window(*model);
    const QSignalSpy attention(&window, &MainWindowModel::attentionWanted);
    model->alert = u"Something is wrong."_s;
    EXPECT_FALSE(window.mayClose());
    EXPECT_TRUE(window.alert().message.startsWith(u"3 people would not be texted."));
    world.clock.advance(0.1);
    EXPECT_TRUE(window.alert().message.startsWith(u"2 people would not be texted."));
    window.dismissAlert();
    EXPECT_EQ(window.alert().message, u"Something is wrong.");
    // What the desktop announces; nobody looks at what comes with it.
    QMetaObject::invokeMethod(qApp, "commitDataRequest",
                              QGenericArgument("QSessionManager&", qApp));
    EXPECT_TRUE(window.mayClose() && model->runner().isActive());
    EXPECT_EQ(attention.size(), 0);
    EXPECT_TRUE(world.clock.runUntilIdle());
    EXPECT_EQ(attention.size(), 1);
}

/// What a desktop with title bars, colours and habits of its own says, and hears.
struct SystemLook final : DrawnLook {
    [[nodiscard]] bool nativeTitle() const override { return true; }
    [[nodiscard]] bool staysWithoutWindow() const override { return true; }
    [[nodiscard]] QColor accent() const override { return still ? Qt::green : Qt::magenta; }
    [[nodiscard]] bool reducesMotion() const override { return still; }
    void showSubtitle(QWindow&, const QString& shown) const override { subtitle = shown; }
    void whenChanged(std::function<void()> action) override { changed = std::move(action); }

    bool still = false;
    mutable QString subtitle;
    std::function<void()> changed;
};

// Catches a second header under the system's own title bar, one without its subtitle, a colour or a
// wish for stillness that counts from the next start on, and an application that ends with its
// window where none does.
TEST_F(WindowModels, ADesktopsOwnTitleBarColourAndHabitsAreUsed) {
    withFriends();
    auto* const look = new SystemLook;
    MainWindow main(*model, std::unique_ptr<NativeLook>(look));
    QQuickWindow& window = main.window();
    const int bar = window.minimumHeight() - 580;
    main.show();
    EXPECT_EQ(window.minimumWidth(), 960);
    EXPECT_EQ(window.size(), QSize(1240, 740 + bar)) << "a header of our own is in the way";
    EXPECT_LT(bar, 40) << "as high as a menu bar";
    EXPECT_EQ(window.title(), u"Friends");
    model->setSelected(u"ann"_s, true);
    EXPECT_EQ(look->subtitle, u"1 of 3 selected");

    auto* appearance = qmlEngine(&window)->singletonInstance<SystemAppearance*>(
        qmlTypeId("Velmora", 1, 0, "SystemAppearance"));
    EXPECT_EQ(appearance->accent(), Qt::magenta);
    EXPECT_TRUE(appearance->animated());
    look->still = true;
    look->changed();
    EXPECT_EQ(appearance->accent(), Qt::green);
    EXPECT_FALSE(appearance->animated());
    window.close();
    EXPECT_FALSE(window.isVisible() || QGuiApplication::quitOnLastWindowClosed());
    QGuiApplication::setQuitOnLastWindowClosed(true);
}

// Catches a command that reaches under a sheet or the alert, a key that two things claim in a pause
// or that is taken from a text field, and a bar that is not told.
TEST_F(WindowModels, OffersFollowWhatIsOnTheScreen) {
    Presentation presentation(started());
    MenuCommands& menus = *presentation.menus();
    const QSignalSpy told(&menus, &MenuCommands::offersChanged);
    const auto heard = [&menus] {
        QStringList keys;
        for (const QVariant& each : menus.shortcuts()) {
            const auto place = static_cast<qsizetype>(each.value<MenuEntry>().command);
            const auto offer = menus.offers().value(place).value<MenuEntry>();
            if (offer.enabled)
                keys += offer.sequences();
        }
        return keys.join(u' ').toStdString();
    };
    const std::string all =
        "Ctrl+, Ctrl+Q Ctrl+W Ctrl+F Ctrl+Shift+A Ctrl+Shift+D Ctrl+R Ctrl+Return Ctrl+Enter "
        "Ctrl+M";
    const std::string noFind = "Ctrl+, Ctrl+Q Ctrl+W Ctrl+Shift+A Ctrl+Shift+D Ctrl+R";
    const std::string covered = noFind + " Ctrl+Return Ctrl+Enter Ctrl+M";
    EXPECT_EQ(heard(), covered) << "the terms";
    const std::vector<std::tuple<std::function<void()>, std::string, bool>> steps = {
        {[&] { model->acceptTerms(); }, all, true},
        {[&] { model->alert = u"No."_s; }, covered, false},
        {[&] { model->alert = std::nullopt; }, all, true},
        {[&] { model->confirmingRun = true; }, covered, false},
        {[&] { model->confirmingRun = false; }, all, true},
        {[&] { model->runner().state = Runner::State::paused; }, noFind + " Ctrl+M", false},
        {[&] { model->runner().state = Runner::State::idle; }, all, true},
        {[&] { model->contactsAllowed = false; }, covered, true},
        {[&] { model->contactsAllowed = true; }, all, true},
    };
    for (const auto& [change, keys, selects] : steps) {
        const qsizetype before = told.size();
        change();
        EXPECT_GT(told.size(), before) << keys;
        EXPECT_EQ(heard(), keys);
        const auto send = menus.entriesFor(3, nullptr).constLast().value<MenuEntry>();
        EXPECT_EQ(send.keys().isEmpty(), model->runner().state == Runner::State::paused) << keys;
        model->setSelection({});
        menus.run(menus::Command::selectShown);
        EXPECT_EQ(!model->selection().isEmpty(), selects) << keys;
    }
}
