#include <QClipboard>
#include <QGuiApplication>
#include <ranges>

#include "ui/window/window_home.h"

namespace velmora {
namespace {

// Catches a search that the list or the bulk buttons do not follow, that Escape keeps, or that the
// list loses by being chosen again; a chosen list that cannot be let go by its row.
TEST_F(WindowTest, SearchLimitsWhatIsSelected) {
    withFriends();
    WindowDriver& user = show();
    user.click(u"Search people"_s);
    user.type(u"bo"_s);
    EXPECT_TRUE(user.vanishes(u"Ann Lee"_s));
    EXPECT_TRUE(user.click(u"Friends, 3"_s) && user.click(u"Select Shown"_s));
    EXPECT_EQ(model->selection(), QSet<QString>{u"bob"_s});
    user.click(u"Search people"_s);
    user.type(u"x"_s);
    EXPECT_TRUE(user.appears(u"No matches"_s));
    user.key(Qt::Key_Escape);
    EXPECT_TRUE(user.appears(u"Ann Lee"_s) && user.appears(u"Clear All"_s));
    const QStringList read = user.spoken();
    EXPECT_LT(read.indexOf(u"StaticText, Ann Lee"_s), read.indexOf(u"StaticText, Bob Stone"_s))
        << "read in another order than it stands";
    user.click(u"Selected"_s);
    EXPECT_TRUE(user.vanishes(u"Ann Lee"_s) && user.click(u"Clear Shown"_s));
    EXPECT_TRUE(user.appears(u"Nobody selected yet"_s));
    const QPoint row = user.place(u"Friends, 3"_s);
    QTest::mouseClick(&user.window(), Qt::LeftButton, Qt::ShiftModifier, row);
    EXPECT_TRUE(model->config().selectedGroupID);
    QTest::mouseClick(&user.window(), Qt::LeftButton, command, row);
    EXPECT_FALSE(model->config().selectedGroupID) << "the selection can be cleared";
}

// Catches a list that opens where the one before it stood, its first people out of sight.
TEST_F(WindowTest, AnotherListOpensAtItsBeginning) {
    std::vector<QByteArray> people;
    for (const int number : std::views::iota(100, 140))
        people.push_back(
            person(u"%1"_s.arg(number), u"P%1"_s.arg(number), {}, u"212 555 0%1"_s.arg(number)));
    friends(people);
    withFriends();
    WindowDriver& user = show();
    const auto firstIsSeen = [&user] {
        return user.area(u"P100"_s).top() >= user.area(u"People"_s, QAccessible::List).top();
    };
    user.click(u"P100"_s);
    user.key(Qt::Key_PageDown);
    EXPECT_FALSE(firstIsSeen());
    EXPECT_TRUE(user.click(u"All Contacts, 40"_s));
    user.settle();
    EXPECT_TRUE(firstIsSeen());
}

// Catches a note that loses the keyboard or its row while it is typed, and keys that act on
// another person than the one just clicked; a passage's menu that leaves before it is used.
TEST_F(WindowTest, NotesAndKeysStayWithTheirPerson) {
    withFriends().setCurrentTemplate(u"Hi {first_name}{custom_note}"_s);
    WindowDriver& user = show();
    user.click(u"Hi Joanne"_s);
    user.keys({Qt::Key_Space, Qt::Key_Return});
    EXPECT_EQ(model->selection(), QSet<QString>{u"joanne"_s});
    user.type(u"See you there"_s);
    EXPECT_EQ(user.focused(), u"Personal note");
    EXPECT_EQ(model->config().notes.value(u"joanne"_s), u"See you there");
    EXPECT_TRUE(user.appears(u"Hi Joanne See you there"_s));
    for (const QString& command : {u"Select All"_s, u"Copy"_s}) {
        const QPoint preview = user.place(u"Hi Bob"_s);
        QTest::mouseMove(&user.window(), preview);
        QTest::mouseClick(&user.window(), Qt::RightButton, {}, preview);
        EXPECT_TRUE(user.click(command, QAccessible::MenuItem));
    }
    EXPECT_EQ(QGuiApplication::clipboard()->text(), u"Hi Bob");
    user.click(u"Hi Joanne See you there"_s);
    user.keys({Qt::Key_Up, Qt::Key_Space});
    EXPECT_EQ(model->selection(), (QSet<QString>{u"bob"_s, u"joanne"_s}));
}

// Catches a note that cannot be begun or left by the keys alone, an offer that takes what is typed
// without being one, and a way out that ends elsewhere.
TEST_F(WindowTest, ANoteIsBegunWrittenAndLeftByTheKeyboard) {
    withFriends().setCurrentTemplate(u"Hi {first_name}{custom_note}"_s);
    WindowDriver& user = show();
    ASSERT_TRUE(user.until([&] { return user.shows(u"Ann Lee"_s); }));
    while (!user.focused().startsWith(u"Ann Lee"))
        user.key(Qt::Key_Tab);
    user.key(Qt::Key_Down);
    for (const int back : {Qt::Key_Left, Qt::Key_Escape}) {
        user.key(Qt::Key_Right);
        EXPECT_EQ(user.focused(), u"Add note");
        user.key(back);
        EXPECT_TRUE(user.focused().startsWith(u"Bob Stone"));
    }
    for (const auto& [to, press] :
         {std::pair(Qt::Key_Tab, Qt::Key_Return), {Qt::Key_Right, Qt::Key_Space}}) {
        model->editingNoteID = std::nullopt;
        user.settle();
        user.key(to);
        user.key(press);
        EXPECT_EQ(user.focused(), u"Personal note");
        user.type(u"x"_s);
        EXPECT_EQ(model->config().notes.value(u"bob"_s), u"x");
        user.key(Qt::Key_Backspace);
        user.key(Qt::Key_Escape);
    }
    EXPECT_TRUE(user.focused().startsWith(u"Bob Stone"));
    user.key(Qt::Key_Space);
    EXPECT_EQ(model->selection(), QSet<QString>{u"bob"_s});
    user.key(Qt::Key_Tab);
    EXPECT_EQ(user.focused(), u"Personal note");
    user.key(Qt::Key_Tab);
    EXPECT_EQ(user.focused(), u"Message");
    user.key(Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_EQ(user.focused(), u"Personal note");
    user.key(Qt::Key_Tab);
    while (user.focused() != u"Clear All")
        user.key(Qt::Key_Tab);
    user.key(Qt::Key_Tab);
    EXPECT_TRUE(user.focused().startsWith(u"Bob Stone")) << user.focused().toStdString();
    user.key(Qt::Key_Down);
    user.key(Qt::Key_Right);
    user.key(Qt::Key_Up);
    user.key(Qt::Key_Space);
    EXPECT_TRUE(model->selection().isEmpty()) << "the offer kept the keyboard";
}

}  // namespace
}  // namespace velmora
