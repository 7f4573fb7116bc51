#include "ui/window/main_window_model.h"

#include <QGuiApplication>
#include <QSignalSpy>

#include "app/app_home.h"
#include "ui/first_run/first_run_model.h"
#include "ui/sidebar/sidebar_model.h"
#include "ui/window/main_window.h"

namespace velmora {
namespace {

using WindowModels = AppHome;

// Catches a count that lags behind the model, or a zero shown where there is nothing to count; a
// sidebar that keeps an old count, or is rebuilt (and scrolled back) for a mere count.
TEST_F(WindowModels, CountsFollowTheAddressBook) {
    friends({ann, bob, person(u"cid"_s, u"Cid"_s, u"Ray"_s)});
    withFriends();
    const MainWindowModel window(*model);
    const SidebarModel sidebar(*model);
    const QSignalSpy changes(&window, &MainWindowModel::changed);
    const QSignalSpy resets(&sidebar, &SidebarModel::modelReset);
    const QSignalSpy counts(&sidebar, &SidebarModel::dataChanged);
    model->setSelected(u"ann"_s, true);
    EXPECT_GE(changes.size(), 1);
    EXPECT_EQ(window.subtitle(), u"1 of 3 selected \u00B7 1 need attention")
        << "Cid has no number; Bob's new thread needs no attention";
    friends({});
    model->loadList();
    EXPECT_EQ(window.subtitle(), u"");
    EXPECT_EQ(sidebar.index(1).data(SidebarModel::countRole), 0);
    EXPECT_EQ(counts.size(), 2);
    EXPECT_EQ(resets.size(), 0);
}

// Catches a second start-up when the window is hidden and shown again; a look at the history that
// was not needed, or that names a wrong time; a window left in the Dock, or a large one made small.
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
    FirstRunModel sheet(*model);
    EXPECT_EQ(sheet.checkedText(), QString());
    model->numbers = std::vector<NumberInfo>();
    world.clock.advance(60);
    const auto american = speaking(u"en_US"_s);
    EXPECT_EQ(sheet.checkedText().simplified(), u"Checked at 11:00:02 AM. Still nothing found."_s);
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
    model->alert = u"Call (212) 555-0101."_s;
    EXPECT_FALSE(window.mayClose());
    EXPECT_TRUE(window.alert().message.startsWith(u"3 people would not be texted."));
    world.clock.advance(0.1);
    EXPECT_TRUE(window.alert().message.startsWith(u"2 people would not be texted."));
    window.dismissAlert();
    EXPECT_EQ(window.alert().message, u"Call (212)\u00A0555-0101."_s);
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
    EXPECT_TRUE(window.mayClose() && model->runner().isActive());
    EXPECT_EQ(attention.size(), 0);
    EXPECT_TRUE(world.clock.runUntilIdle());
    EXPECT_EQ(attention.size(), 1);
}

}  // namespace
}  // namespace velmora
