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
    EXPECT_TRUE(user.click(u"I Agree"_s) && model->termsAccepted());
    ASSERT_TRUE(user.appears(u"Not Now"_s) && user.vanishes(u"I Agree"_s));
    user.key(Qt::Key_Escape);
    EXPECT_TRUE(user.vanishes(u"Not Now"_s) && user.click(u"Show Me How"_s));
    ASSERT_TRUE(user.appears(u"Check Again"_s));
    ASSERT_TRUE(QFile::rename(home.historyPath() + u'~', home.historyPath()));
    EXPECT_TRUE(user.click(u"Check Again"_s));
    ASSERT_TRUE(user.appears(u"Choose Later"_s));
    EXPECT_TRUE(user.click(u"(212) 555-8888"_s));
    EXPECT_EQ(model->config().senderNumber, myOtherLine);
    EXPECT_TRUE(user.appears(u"Friends, 3"_s));
    user.clickAt(list);
    EXPECT_EQ(model->config().selectedGroupID, u"friends"_s) << "the click above meant nothing";
}

// Catches a split that the keyboard cannot move, or that squeezes the list on the smallest window;
// a settings window that its keys do not open and close, or that cuts the number.
TEST_F(WindowTest, SizesStayInTheirBounds) {
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

    user.key(Qt::Key_Comma, command);
    QWindow* settings = WindowDriver::windowTitled(u"Settings"_s);
    ASSERT_TRUE(settings != nullptr);
    const QString picker = u"Send from"_s;
    const int width = user.area(picker, QAccessible::ComboBox, settings).width();
    model->numbers = {{myLine, 4242}};
    user.settle();
    EXPECT_GE(user.area(picker, QAccessible::ComboBox, settings).width(), width + 12)
        << "two digits and a letter more";
    user.key(Qt::Key_Escape);
    EXPECT_TRUE(!settings->isVisible() && user.window().isVisible());
}

// Catches an alert that cannot be dismissed by a key, takes what lies under it along, keeps the
// keyboard or loses it to a sheet that opens under it.
TEST_F(WindowTest, AlertLiesOverEverything) {
    withFriends();
    WindowDriver& user = show();
    user.click(u"Friends, 3"_s);
    user.key(Qt::Key_Return, command);
    ASSERT_TRUE(user.appears(u"Select at least one person."_s));
    EXPECT_EQ(tabStops(), QStringList(u"OK"_s));
    user.key(Qt::Key_Return);
    EXPECT_TRUE(!model->alert.value().has_value() && user.vanishes(u"OK"_s));
    user.key(Qt::Key_Up);
    EXPECT_EQ(user.window().title(), u"All Contacts") << "the keyboard did not come back";

    model->alert = u"Something else."_s;
    model->showingFDAHelp = true;
    ASSERT_TRUE(user.appears(u"OK"_s));
    user.key(Qt::Key_Escape);
    EXPECT_FALSE(model->alert.value().has_value());
    QKeyEvent held(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier, {}, true);
    QCoreApplication::sendEvent(&user.window(), &held);
    EXPECT_TRUE(model->showingFDAHelp) << "one key closed both";
    user.settle();
    user.key(Qt::Key_Escape);
    EXPECT_FALSE(model->showingFDAHelp);
}

// Catches a menu that does not open, does another's work or keeps the keyboard, a shortcut that two
// things claim or a passage swallows, and a window that ends a run by closing.
TEST_F(WindowTest, MenusAndShortcutsDoTheirWork) {
    home.writeMessages(messagesOnLine(myOtherLine));
    withFriends().setSenderNumber(myLine);
    WindowDriver& user = show();
    user.click(u"Friends, 3"_s);
    user.click(u"People"_s, QAccessible::ButtonMenu);
    EXPECT_TRUE(user.click(u"Select All"_s, QAccessible::MenuItem));
    EXPECT_EQ(model->selection().size(), 3);
    user.key(Qt::Key_Up);
    EXPECT_EQ(user.window().title(), u"All Contacts") << "the keyboard did not come back";
    user.keys({Qt::Key_Down, Qt::CTRL | Qt::SHIFT | Qt::Key_D});
    EXPECT_EQ(model->selection().size(), 0);
    user.key(Qt::Key_A, command | Qt::ShiftModifier);
    EXPECT_EQ(model->selection().size(), 3);

    user.clickAt(user.place(u"Select Ann Lee"_s) + QPoint(60, 18));  // her text
    user.key(Qt::Key_Return, command);
    ASSERT_TRUE(user.appears(u"Start Sending"_s));
    user.key(Qt::Key_Return);
    const Runner& run = model->runner();
    EXPECT_TRUE(user.until([&] { return run.state == Runner::State::paused; }));
    user.settle();
    user.key(Qt::Key_Return, command);
    EXPECT_EQ(run.state.value(), Runner::State::running);

    user.key(Qt::Key_W, command);
    EXPECT_TRUE(user.appears(u"A run is still going."_s) && user.window().isVisible());
    user.key(Qt::Key_Return);
    EXPECT_TRUE(user.vanishes(u"Cancel"_s) && run.isActive());
    QEvent quit(QEvent::Quit);
    QCoreApplication::sendEvent(qApp, &quit);
    EXPECT_TRUE(user.window().isVisible() && user.click(u"Stop and Quit"_s));
    EXPECT_TRUE(user.until([&] { return !run.isActive(); }) && user.window().close());
}

// Catches an insert that cannot be undone, the first words of a list that can be, and an undo that
// brings another list's words; an editor that grows out of its frame or loses the caret; a menu of
// numbers that chooses another, and one of nothing that takes the keyboard.
TEST_F(WindowTest, TheComposerKeepsToItsListAndItsFrame) {
    thread(u"+12125550102"_s, myOtherLine);
    withFriends().setSenderNumber(myLine);
    model->setCurrentTemplate(u"Hello"_s);
    const QString more = u"Hello again"_s;
    model->editConfig([&](AppConfig& config) { config.templates[allContactsID] = more; });
    WindowDriver& user = show();
    user.click(u"Message"_s, QAccessible::EditableText);
    user.key(Qt::Key_Z, command);
    EXPECT_EQ(model->currentTemplate(), u"Hello"_s);
    user.key(Qt::Key_A, command);
    user.key(Qt::Key_Backspace);
    user.click(u"Insert"_s);
    user.click(u"First name"_s);
    EXPECT_EQ(model->currentTemplate(), u"{first_name}"_s);
    for (int undone = 0; undone < 2; ++undone)
        user.key(Qt::Key_Z, command);
    EXPECT_EQ(model->currentTemplate(), u"Hello"_s);
    user.click(u"All Contacts, 3"_s);
    user.click(u"Message"_s, QAccessible::EditableText);
    user.key(Qt::Key_Z, command);
    EXPECT_EQ(model->currentTemplate(), more);
    const QRect frame = user.area(u"Message"_s, QAccessible::EditableText);
    user.key(Qt::Key_End, command);
    for (int line = 0; line < 40; ++line)
        user.key(Qt::Key_Return);
    const QObject* editor = QGuiApplication::focusObject();
    EXPECT_EQ(user.area(u"Message"_s, QAccessible::EditableText), frame);
    EXPECT_LE(editor->property("cursorRectangle").toRectF().bottom(), frame.height());
    user.key(Qt::Key_Home, command);
    EXPECT_GE(editor->property("cursorRectangle").toRectF().top(), 0);

    user.click(u"(212) 555-9999"_s, QAccessible::ButtonMenu);
    user.click(u"(212) 555-8888"_s, QAccessible::MenuItem);
    EXPECT_EQ(model->config().senderNumber, myOtherLine);
    model->numbers = std::vector<NumberInfo>();
    user.click(u"(212) 555-8888"_s, QAccessible::ButtonMenu);
    EXPECT_TRUE(user.shows(u"No number found on this Mac"_s));
    user.key(Qt::Key_Return);
    EXPECT_EQ(user.focused(), u"Message"_s);
}

// Catches a run under another name or of a sheet that was cancelled, the second half of a double
// click or a second Return that starts a run unread or stops the one just resumed, a button that
// stays dead after it, and a pause, a log or a summary that does not come to the screen.
TEST_F(WindowTest, ARunIsStartedPausedResumedAndStopped) {
    home.writeMessages(messagesOnLine(myOtherLine));
    withFriends().setSenderNumber(myLine);
    model->setSelection({u"ann"_s, u"joanne"_s});
    WindowDriver& user = *(driver = std::make_unique<WindowDriver>(
                               *model, [this] { world.clock.advance(0.02); }, Motion::still));
    const Runner& run = model->runner();
    user.click(u"Send to 2…"_s);
    EXPECT_TRUE(user.click(u"Cancel"_s) && user.vanishes(u"Cancel"_s));
    EXPECT_FALSE(model->confirmingRun || run.isActive());
    user.click(u"Send to 2…"_s);
    user.key(Qt::Key_Return);
    user.click(u"Start Sending"_s);
    EXPECT_TRUE(model->confirmingRun && !run.isActive());
    world.clock.advance(0.3);
    user.click(u"Run name"_s, QAccessible::EditableText);
    user.key(Qt::Key_A, command);
    user.type(u"Party"_s);
    user.click(u"Start Sending"_s);
    EXPECT_EQ(run.batch.value(), u"Party"_s);
    ASSERT_TRUE(user.appears(u"Resume"_s));
    const QPoint resume = user.place(u"Resume"_s);
    user.clickAt(resume);
    user.clickAt(resume);
    EXPECT_EQ(run.state.value(), Runner::State::running);
    world.clock.advance(0.4);
    user.clickAt(resume);
    EXPECT_TRUE(user.appears(u"1 of 2 · Stopped after 1 of 2."_s) && user.shows(u"Activity"_s));
}

}  // namespace
}  // namespace velmora
