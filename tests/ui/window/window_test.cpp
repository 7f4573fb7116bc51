#include <gmock/gmock.h>

#include <QGuiApplication>

#include "ui/window/window_home.h"

namespace velmora {

namespace {

// Catches a first-use sheet that can be passed by, by the pointer or by Tab, one out of its turn,
// and one that stays after it has been answered.
TEST_F(WindowTest, FirstStartLeadsThroughItsSheets) {
    thread(u"+12125550102"_s, myOtherLine);
    ASSERT_TRUE(QFile::rename(home.historyPath(), home.historyPath() + u'~'));
    WindowDriver& user = show();
    ASSERT_TRUE(user.until([&] { return model->bootstrapped && user.shows(u"I Agree"_s); }));

    const QPoint list(100, 104);
    user.clickAt(list);
    EXPECT_EQ(model->config().selectedGroupID, allContactsID) << "clicked through the sheet";
    const QStringList termsStops = {u"Read the full terms of use"_s, u"Quit"_s, u"I Agree"_s};
    EXPECT_THAT(tabStops(), ::testing::UnorderedElementsAreArray(termsStops));

    EXPECT_TRUE(user.click(u"I Agree"_s));
    EXPECT_TRUE(model->termsAccepted());
    ASSERT_TRUE(user.until([&] { return user.shows(u"Not Now"_s) && !user.shows(u"I Agree"_s); }));
    user.key(Qt::Key_Escape);
    EXPECT_TRUE(user.until([&] { return !user.shows(u"Not Now"_s); }));
    EXPECT_TRUE(user.click(u"Show Me How"_s));
    ASSERT_TRUE(user.until([&] { return user.shows(u"Check Again"_s); }));
    ASSERT_TRUE(QFile::rename(home.historyPath() + u'~', home.historyPath()));
    EXPECT_TRUE(user.click(u"Check Again"_s));

    ASSERT_TRUE(user.until([&] { return user.shows(u"Choose Later"_s); }));
    EXPECT_TRUE(user.click(u"(212) 555-8888"_s));
    EXPECT_EQ(model->config().senderNumber, myOtherLine);
    EXPECT_TRUE(user.until([&] { return user.shows(u"Friends, 3"_s); }));
    user.clickAt(list);
    EXPECT_EQ(model->config().selectedGroupID, u"friends"_s) << "the click above meant nothing";
}

// Catches a split that the keyboard cannot move, or that squeezes the list on the smallest window.
TEST_F(WindowTest, SidebarWidthStaysInItsBounds) {
    withFriends();
    WindowDriver& user = show();
    const auto comesTo = [&](int from, int to) {
        return user.until([&] {
            const int width = 2 * user.place(u"Lists"_s, QAccessible::List).x() + 2;
            return width >= from && width <= to;
        });
    };
    EXPECT_TRUE(comesTo(230, 230));
    for (int turn = 0; turn < 30 && user.focused() != u"Sidebar width"; ++turn)
        user.key(Qt::Key_Tab);
    user.key(Qt::Key_Right);
    EXPECT_TRUE(comesTo(240, 240));
    for (int turn = 0; turn < 10; ++turn)
        user.key(Qt::Key_Right);
    EXPECT_TRUE(comesTo(300, 300));
    user.window().resize(user.window().minimumSize());
    EXPECT_TRUE(comesTo(200, 960 - 380 - 340));
}

// Catches an alert that cannot be dismissed by a key, takes what lies under it along, keeps the
// keyboard or loses it to a sheet that opens under it.
TEST_F(WindowTest, AlertLiesOverEverything) {
    withFriends();
    WindowDriver& user = show();
    user.click(u"Friends, 3"_s);
    user.key(Qt::Key_Return, command);
    ASSERT_TRUE(user.until([&] { return user.shows(u"Select at least one person."_s); }));
    EXPECT_EQ(tabStops(), QStringList(u"OK"_s));
    user.key(Qt::Key_A, command | Qt::ShiftModifier);
    EXPECT_TRUE(model->selection().isEmpty()) << "a shortcut reached under the alert";
    user.key(Qt::Key_Return);
    EXPECT_FALSE(model->alert.value().has_value());
    EXPECT_TRUE(user.until([&] { return !user.shows(u"OK"_s); }));
    user.key(Qt::Key_Up);
    EXPECT_EQ(user.window().title(), u"All Contacts") << "the keyboard did not come back";

    model->alert = u"Something else."_s;
    model->showingFDAHelp = true;
    ASSERT_TRUE(user.until([&] { return user.shows(u"OK"_s); }));
    user.key(Qt::Key_Escape);
    EXPECT_FALSE(model->alert.value().has_value());
    QKeyEvent held(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier, {}, true);
    QCoreApplication::sendEvent(&user.window(), &held);
    EXPECT_TRUE(model->showingFDAHelp) << "one key closed both";
    user.settle();
    user.key(Qt::Key_Escape);
    EXPECT_FALSE(model->showingFDAHelp);
}

// Catches a menu that does not open or does another's work, a shortcut that two things claim or a
// passage swallows, and a window that ends a run by closing.
TEST_F(WindowTest, MenusAndShortcutsDoTheirWork) {
    home.writeMessages(messagesOnLine(myOtherLine));
    withFriends().setCurrentTemplate(u"Hello {first_name}"_s);
    model->setSenderNumber(myLine);
    WindowDriver& user = show();
    user.click(u"Friends, 3"_s);
    EXPECT_TRUE(user.click(u"People"_s, QAccessible::ButtonMenu));
    EXPECT_TRUE(user.click(u"Select All"_s, QAccessible::MenuItem));
    EXPECT_EQ(model->selection().size(), 3);
    // A menu that opens under the pointer would highlight what lies there, at its first frame.
    QTest::mouseMove(&user.window(), {20, user.window().height() - 20});
    user.key(Qt::Key_F10);
    for (int menu = 0; menu < 3; ++menu)
        user.key(Qt::Key_Right);
    user.key(Qt::Key_Down);
    user.key(Qt::Key_Down);
    user.key(Qt::Key_Return);
    EXPECT_EQ(model->selection().size(), 0) << "Clear Selection is the second of the fourth menu";
    user.key(Qt::Key_Up);
    EXPECT_EQ(user.window().title(), u"All Contacts") << "the keyboard did not come back";
    user.key(Qt::Key_Down);
    user.key(Qt::Key_A, command | Qt::ShiftModifier);
    EXPECT_EQ(model->selection().size(), 3);
    user.key(Qt::Key_D, command | Qt::ShiftModifier);
    EXPECT_EQ(model->selection().size(), 0);
    model->selectShown();

    user.clickAt(user.place(u"Select Ann Lee"_s) + QPoint(60, 18));  // her text
    user.key(Qt::Key_Return, command);
    ASSERT_TRUE(user.until([&] { return user.shows(u"Start Sending"_s); }));
    user.key(Qt::Key_Return);
    EXPECT_TRUE(user.until([&] { return model->runner().state == Runner::State::paused; }));
    user.settle();
    user.key(Qt::Key_Return, command);
    EXPECT_EQ(model->runner().state.value(), Runner::State::running);

    user.key(Qt::Key_W, command);
    EXPECT_TRUE(user.window().isVisible()) << "a run ended without a word";
    ASSERT_TRUE(user.until([&] { return user.shows(u"A run is still going."_s); }));
    user.key(Qt::Key_Return);
    EXPECT_TRUE(user.until([&] { return !user.shows(u"Cancel"_s); }));
    EXPECT_TRUE(model->runner().isActive());
    QEvent quit(QEvent::Quit);
    QCoreApplication::sendEvent(qApp, &quit);
    EXPECT_TRUE(user.window().isVisible() && user.click(u"Stop and Quit"_s));
    ASSERT_TRUE(user.until([&] { return !model->runner().isActive(); }));
    EXPECT_TRUE(user.window().close());
}

// Catches a settings window that opens twice, keeps its keys from closing it or cuts the number.
TEST_F(WindowTest, SettingsAreAWindowOfTheirOwn) {
    withFriends();
    WindowDriver& user = show();
    user.key(Qt::Key_Comma, command);
    QWindow* settings = WindowDriver::windowTitled(u"Settings"_s);
    ASSERT_TRUE(settings != nullptr);
    EXPECT_TRUE(user.shows(u"Send Test"_s, settings));
    const auto width = [&] {
        return user.area(u"Send from"_s, QAccessible::ComboBox, settings).width();
    };
    const int before = width();
    model->numbers = {{myLine, 4242}};
    user.settle();
    EXPECT_GE(width(), before + 12) << "two digits and a letter more";
    user.key(Qt::Key_Escape);
    EXPECT_FALSE(settings->isVisible());
    EXPECT_TRUE(user.window().isVisible());
}

// Catches a run under another name or of a sheet that was cancelled, controls that stay open during
// a run, a pause without its reason, and a log or a summary that does not come to the screen.
TEST_F(WindowTest, ARunIsStartedPausedResumedAndDone) {
    home.writeMessages(messagesOnLine(myOtherLine));
    withFriends().setSenderNumber(myLine);
    model->setSelected(u"ann"_s, true);
    model->setSelected(u"joanne"_s, true);
    WindowDriver& user = show();
    EXPECT_TRUE(user.click(u"Send to 2…"_s));
    ASSERT_TRUE(user.until([&] { return user.shows(u"Send to 2 people?"_s); }));
    EXPECT_TRUE(user.click(u"Cancel"_s));
    EXPECT_FALSE(model->confirmingRun || model->runner().isActive());
    EXPECT_TRUE(user.click(u"Send to 2…"_s) &&
                user.click(u"Run name"_s, QAccessible::EditableText));
    user.key(Qt::Key_A, command);
    user.type(u"Party"_s);
    EXPECT_TRUE(user.click(u"Start Sending"_s));
    EXPECT_EQ(model->runner().batch.value(), u"Party"_s);
    ASSERT_TRUE(user.until([&] { return user.shows(u"Resume"_s); }));
    EXPECT_TRUE(
        user.shows(u"1 of 2 · Ann Lee got it from (212) 555-8888, not (212) 555-9999. Fix "
                   "the line on your iPhone, then resume."_s));

    const QString message = model->currentTemplate();
    user.click(u"Message"_s, QAccessible::EditableText);
    user.type(u"later"_s);
    user.click(u"All Contacts, 3"_s);
    user.click(u"Clear All"_s);
    user.click(u"Select Bob Stone"_s);
    EXPECT_EQ(model->currentTemplate(), message);
    EXPECT_EQ(model->config().selectedGroupID, u"friends"_s);
    EXPECT_EQ(model->selection().size(), 2);

    home.writeMessages(messagesOnLine(myLine));
    EXPECT_TRUE(user.click(u"Resume"_s));
    EXPECT_TRUE(user.until([&] { return user.shows(u"2 of 2 · Finished. 2 of 2 processed."_s); }));
    const QStringList log = user.spoken().filter(u"ListItem"_s).mid(5);
    EXPECT_TRUE(log.size() == 2 && log[0].contains(u"Joanne") && log[1].contains(u"Ann Lee"));
}

// Catches the second half of a double click, or a second Return, that starts a run unread or stops
// the one just resumed; and a button that stays dead after it.
TEST_F(WindowTest, DoubleClicksDoNoMoreThanClicks) {
    home.writeMessages(messagesOnLine(myOtherLine));
    withFriends().setSenderNumber(myLine);
    model->selectShown();
    WindowDriver& user = *(driver = std::make_unique<WindowDriver>(
                               *model, [this] { world.clock.advance(0.02); }, Motion::still));
    const Runner& run = model->runner();
    user.click(u"Send to 3…"_s);
    user.key(Qt::Key_Return);
    user.click(u"Start Sending"_s);
    EXPECT_TRUE(model->confirmingRun && !run.isActive());
    world.clock.advance(0.3);
    user.click(u"Start Sending"_s);
    EXPECT_TRUE(run.isActive());
    world.clock.advance(30);
    const QPoint resume = user.place(u"Resume"_s);
    user.clickAt(resume);
    user.clickAt(resume);
    EXPECT_EQ(run.state.value(), Runner::State::running);
    world.clock.advance(0.4);
    user.clickAt(resume);
    EXPECT_NE(run.state.value(), Runner::State::running);
}

}  // namespace

}  // namespace velmora
