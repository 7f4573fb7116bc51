#include <QGuiApplication>

#include "ui/window/window_home.h"

namespace velmora {

namespace {

// Catches an insert or the first words of a list that cannot be undone or that can, and an undo
// that brings another list's words; an editor that grows out of its frame or loses the caret; a
// menu of nothing that takes the keyboard.
TEST_F(WindowTest, MessageUndoesWhatWasDoneToItAlone) {
    withFriends().setCurrentTemplate(u"Hello"_s);
    const QString more = u"Hello again"_s;
    model->editConfig([&](AppConfig& config) { config.templates[allContactsID] = more; });
    WindowDriver& user = show();
    user.click(u"Message"_s, QAccessible::EditableText);
    const auto undo = [&] { user.key(Qt::Key_Z, command); };
    undo();
    EXPECT_EQ(model->currentTemplate(), u"Hello"_s);
    user.key(Qt::Key_A, command);
    user.key(Qt::Key_Backspace);
    user.click(u"Insert"_s);
    user.click(u"First name"_s);
    EXPECT_EQ(model->currentTemplate(), u"{first_name}"_s);
    undo();
    undo();
    EXPECT_EQ(model->currentTemplate(), u"Hello"_s);
    user.click(u"All Contacts, 3"_s);
    user.click(u"Message"_s, QAccessible::EditableText);
    undo();
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

    model->numbers = std::vector<NumberInfo>();
    user.click(u"(212) 555-9999"_s, QAccessible::ButtonMenu);
    EXPECT_TRUE(user.spoken().contains(
        u"MenuItem, No number found on this Mac, unchecked | Unavailable"_s));
    user.key(Qt::Key_Return);
    EXPECT_EQ(user.focused(), u"Message"_s);
}

}  // namespace

}  // namespace velmora
