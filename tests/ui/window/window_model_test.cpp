#include "ui/window/main_window_model.h"

#include <QGuiApplication>
#include <QSignalSpy>

#include "app/app_home.h"
#include "ui/first_run/first_run_model.h"
#include "ui/language.h"
#include "ui/sidebar/sidebar_model.h"
#include "ui/window/main_window.h"

namespace velmora {

namespace {

using WindowModels = AppHome;

// Catches a count that lags behind the model, or a zero shown where there is nothing to count; a
// sidebar that keeps an old count, or is rebuilt (and scrolled back) for a mere count.
TEST_F(WindowModels, CountsFollowTheAddressBook) {
    friends({person(u"ann"_s, u"Ann"_s, u"Lee"_s, u"212 555 0101"_s),
             person(u"bob"_s, u"Bob"_s, u"Stone"_s, u"212 555 0102"_s),
             person(u"cid"_s, u"Cid"_s, u"Ray"_s)});
    withFriends();
    const MainWindowModel window(*model);
    const SidebarModel sidebar(*model);
    const QSignalSpy changes(&window, &MainWindowModel::changed);
    const QSignalSpy resets(&sidebar, &SidebarModel::modelReset);
    const QSignalSpy counts(&sidebar, &SidebarModel::dataChanged);
    EXPECT_EQ(window.subtitle(), u"0 of 3 selected \u00B7 1 need attention")
        << "Cid has no number; Bob's new thread needs no attention";
    model->setSelected(u"ann"_s, true);
    EXPECT_GE(changes.size(), 1);
    EXPECT_EQ(window.subtitle(), u"1 of 3 selected \u00B7 1 need attention");
    friends({});
    model->loadList();
    EXPECT_EQ(window.subtitle(), u"");
    EXPECT_EQ(sidebar.index(1).data(SidebarModel::countRole), 0);
    EXPECT_EQ(sidebar.index(1).data(SidebarModel::symbolRole), u"person.3"_s);
    EXPECT_EQ(counts.size(), 2);
    EXPECT_EQ(resets.size(), 0);
}

// Catches a second start-up when the window is hidden and shown again; a look at the history that
// was not needed.
TEST_F(WindowModels, StartOnceAndLookAgainOnlyWhenNeeded) {
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
}

// Catches a run that holds up the end of the computer's session, or one that anybody may close.
TEST_F(WindowModels, ARunIsClosedOnlyByTheEndOfTheSession) {
    withFriends().selectShown();
    model->startRun();
    MainWindowModel window(*model);
    const QSignalSpy attention(&window, &MainWindowModel::attentionWanted);
    model->alert = u"Something else."_s;
    EXPECT_FALSE(window.mayClose());
    EXPECT_EQ(window.alert().title, u"A run is still going."_s);
    EXPECT_EQ(window.alert().message,
              u"3 people would not be texted. Send again under the same run name, and it goes on "
              "with them."_s);
    window.dismissAlert();
    EXPECT_EQ(window.alert().message, u"Something else."_s);
    window.dismissAlert();
    EXPECT_FALSE(window.alertShown());
    model->runner().done = 3;
    EXPECT_FALSE(window.mayClose());
    EXPECT_TRUE(window.alert().message.startsWith(u"Every text has gone out"));
    window.dismissAlert();
    model->runner().done = 0;
    // What the desktop announces; nobody looks at what comes with it.
    QMetaObject::invokeMethod(qApp, "commitDataRequest",
                              QGenericArgument("QSessionManager&", qApp));
    EXPECT_TRUE(window.mayClose());
    EXPECT_TRUE(model->runner().isActive());
    window.stopAndQuit();
    EXPECT_EQ(model->runner().state.value(), Runner::State::stopping);
    EXPECT_EQ(attention.size(), 0);
    EXPECT_TRUE(world.clock.runUntilIdle());
    EXPECT_EQ(attention.size(), 1);
}

// Catches a second start that leaves the window in the Dock, or makes a large one small.
TEST_F(WindowModels, TheWindowComesBackAsItWas) {
    MainWindow main(open());
    main.show();
    main.window().setWindowStates(Qt::WindowMaximized | Qt::WindowMinimized);
    main.bringToFront();
    EXPECT_EQ(main.window().windowStates(), Qt::WindowMaximized);
}

// Catches a sheet that says nothing was found before anyone looked, or that names a wrong time.
TEST_F(WindowModels, TheNumberSheetSaysWhenItLookedInVain) {
    FirstRunModel sheet(open());
    EXPECT_EQ(sheet.checkedText(), QString());
    model->numbersCheckedAt = world.clock.now() + 249;
    const Language american(u"en_US"_s);
    EXPECT_EQ(sheet.checkedText().simplified(), u"Checked at 11:04:09 AM. Still nothing found."_s);
    sheet.checkAgain();
    EXPECT_EQ(sheet.checkedText(), QString());
    EXPECT_TRUE(sheet.senderText().startsWith(u"Velmora sends through Messages"));
}

}  // namespace

}  // namespace velmora
