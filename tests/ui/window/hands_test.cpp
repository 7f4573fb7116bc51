#include <gmock/gmock.h>

#include <QClipboard>
#include <QGuiApplication>

#include "ui/window/window_home.h"

namespace velmora {

namespace {

/// The program under the hands of someone who uses the keyboard alone, or types and moves on.
class Hands : public WindowTest {
  protected:
    /// Where the Tab key or its opposite stops, from the reading order's first stop on.
    QStringList walk(Qt::KeyboardModifiers modifiers = {}) {
        QStringList stops;
        const QObject* start = nullptr;
        while (stops.size() < 60) {
            driver->key(modifiers == Qt::ShiftModifier ? Qt::Key_Backtab : Qt::Key_Tab, modifiers);
            if (QGuiApplication::focusObject() == start)
                break;
            if (start == nullptr)
                start = QGuiApplication::focusObject();
            stops.append(driver->focused().section(u',', 0, 0));
        }
        const QStringList read = names();
        const auto first = std::ranges::min_element(
            stops, {}, [&read](const QString& stop) { return read.indexOf(stop); });
        std::rotate(stops.begin(), first, stops.end());
        return stops;
    }

    /// The names of all that is on the screen, as it is read.
    QStringList names() {
        QStringList all;
        for (QAccessibleInterface* each : driver->elements())
            all.append(each->text(QAccessible::Name).section(u',', 0, 0));
        return all;
    }

    void expectWalk(const QString& expected) {
        const QStringList stops = walk();
        EXPECT_EQ(stops.join(u'|').toStdString(), expected.toStdString());
        QStringList back = walk(Qt::ShiftModifier);
        std::reverse(back.begin() + 1, back.end());
        EXPECT_EQ(back.join(u'|').toStdString(), expected.toStdString()) << "the way back";
        const QStringList read = names();
        qsizetype place = -1;
        for (const QString& stop : stops)
            EXPECT_NE(place = read.indexOf(stop, place + 1), -1) << "not as it is read";
    }
};

// Catches a control that Tab does not reach, one that holds it, a stop that is nothing, and an
// order that is not that of reading, in any state of the window.
TEST_F(Hands, TabWalksThroughTheWindowAsItIsRead) {
    withFriends().setSenderNumber(myLine);
    show();
    ASSERT_TRUE(driver->until([&] { return driver->shows(u"Ann Lee"_s); }));
    model->selectGroup({});
    expectWalk(u"Friends|Sidebar width"_s);
    model->selectGroup(u"friends"_s);
    const QString bar = u"Friends|Sidebar width|Show|Search people|"_s;
    const QString composer = u"Message|Insert|(212) 555-9999"_s;
    expectWalk(bar + u"Select All|Clear All|Ann Lee|Add note|"_s + composer);
    model->setSelection({u"bob"_s, u"joanne"_s});
    model->searchText = u"o"_s;
    expectWalk(bar + u"Clear search|Select Shown|Clear Shown|Bob Stone|Add note|"_s + composer +
               u"|Send to 2\u2026"_s);
    model->startRun();
    ASSERT_TRUE(driver->until([&] { return driver->shows(u"Activity"_s); }));
    expectWalk(u"Sidebar width|Bob Stone|Stop|Bob Stone"_s);
    home.writeMessages(messagesOnLine(myOtherLine));
    ASSERT_TRUE(driver->until([&] { return driver->shows(u"Resume"_s); }));
    expectWalk(u"Sidebar width|Bob Stone|Stop|Resume|Joanne"_s);
}

// Catches a pace that counts only once its field is left, one that is none, a break of the line
// that comes along from elsewhere, and a field whose beginning is out of sight.
TEST_F(Hands, WhatIsTypedIntoAFieldCountsAtOnce) {
    withFriends();
    WindowDriver& user = show();
    model->openSettings();
    user.settle();
    QWindow* settings = WindowDriver::windowTitled(u"Settings"_s);
    ASSERT_TRUE(settings != nullptr);
    const QString shortest = u"Shortest wait between texts in seconds"_s;
    const auto enter = [&](const QString& text) {
        settings->requestActivate();
        user.settle();
        user.click(shortest, QAccessible::EditableText, settings);
        user.key(Qt::Key_A, command);
        user.type(text);
    };
    const auto startOf = [&](const QString& name) {
        QRectF start(-1, 0, 0, 0);
        for (QAccessibleInterface* each : user.elements(settings))
            if (each->text(QAccessible::Name) == name)
                QMetaObject::invokeMethod(each->object(), "positionToRectangle",
                                          Q_RETURN_ARG(QRectF, start), Q_ARG(int, 0));
        return start.x();
    };
    enter(u"12345.75"_s);
    EXPECT_EQ(stored().delayMin, 12345.75);
    EXPECT_LT(startOf(shortest), 0) << "the caret is in sight";
    user.key(Qt::Key_Tab);
    EXPECT_GE(startOf(shortest), 0);
    settings->close();
    model->editConfig([](AppConfig& config) { config.delayMin = 98765.25; });
    model->openSettings();
    user.settle();
    EXPECT_GE(startOf(shortest), 0);
    enter(u"-4"_s);
    EXPECT_EQ(stored().delayMin, 0) << "a wait before the one before";
    user.key(Qt::Key_Return);
    enter(u"45"_s);
    user.key(Qt::Key_Escape);
    EXPECT_EQ(stored().delayMin, 0) << "Escape brings back what stood there";
    enter(u"soon"_s);
    settings->close();
    model->openSettings();
    user.settle();
    EXPECT_TRUE(
        user.spoken({}, settings).contains(u"EditableText, "_s + shortest + u", value 0"_s));
    settings->close();
    user.window().requestActivate();
    user.settle();

    QGuiApplication::clipboard()->setText(u"ann\r\nlee\u2028 "_s);
    user.click(u"Search people"_s);
    user.key(Qt::Key_V, command);
    EXPECT_EQ(model->searchText.value(), u"ann lee  ");
}

// Catches a menu that what lies over the window keeps from its work, for the keys or the pointer,
// one that offers what cannot be done, a key that does not lead to the search, and a sheet without
// a button under the Return key.
TEST_F(Hands, MenusWorkUnderASheetAndOfferWhatCanBeDone) {
    withFriends().setCurrentTemplate(u"Hello"_s);
    model->setSelection({u"ann"_s});
    WindowDriver& user = show();
    user.key(Qt::Key_F, command);
    EXPECT_EQ(user.focused(), u"Search people");
    const auto offered = [&](int menu) {
        user.key(Qt::Key_F10);
        for (int turn = 0; turn < menu; ++turn)
            user.key(Qt::Key_Right);
        QStringList items;
        for (QAccessibleInterface* each : user.elements())
            if (each->role() == QAccessible::MenuItem &&
                each->text(QAccessible::Description).isEmpty())
                items.append(each->text(QAccessible::Name));
        return items.join(u'|').toStdString();
    };
    QGuiApplication::clipboard()->clear();
    EXPECT_EQ(offered(2), "Find");
    user.key(Qt::Key_Escape);
    user.click(u"Message"_s, QAccessible::EditableText);
    user.type(u"x"_s);
    EXPECT_EQ(offered(2), "Undo|Select All|Find");
    user.key(Qt::Key_Escape);

    user.key(Qt::Key_Return, command);
    ASSERT_TRUE(user.until([&] { return user.shows(u"Start Sending"_s); }));
    user.settle();
    EXPECT_EQ(user.focused(), u"Start Sending");
    EXPECT_EQ(offered(3), "Select All|Clear Selection|Reload from Contacts|Send\u2026");
    user.key(Qt::Key_Up);
    user.key(Qt::Key_Up);
    user.key(Qt::Key_Up);
    user.key(Qt::Key_Return);
    EXPECT_EQ(model->selection().size(), 1) << "reached under the sheet";
    model->alert = u"Something is wrong."_s;
    user.settle();
    EXPECT_EQ(offered(5), "Terms of Use|Pacing and Safeguards");
    user.key(Qt::Key_Escape);
    EXPECT_TRUE(model->alert.value()) << "the menu's key reached the alert";
    user.click(u"Velmora"_s, QAccessible::ButtonMenu);
    user.click(u"About Velmora"_s);
    EXPECT_TRUE(WindowDriver::windowTitled(u"About Velmora"_s) != nullptr);
}

// Catches a pointer that takes the place of the keyboard by lying there, the second half of a
// double click that chooses, and an inserted piece whose undoing takes more along.
TEST_F(Hands, OnlyWhatIsMeantIsChosen) {
    withFriends().setCurrentTemplate(u""_s);
    WindowDriver& user = show();
    user.click(u"Message"_s, QAccessible::EditableText);
    user.type(u"Hello "_s);
    user.click(u"Insert"_s);
    user.click(u"First name"_s);
    user.type(u"!"_s);
    for (const QString& left : {u"Hello {first_name}"_s, u"Hello "_s, u""_s}) {
        user.key(Qt::Key_Z, command);
        EXPECT_EQ(model->currentTemplate(), left);
    }
    // The menu bar lies over what has no room under it.
    std::vector<NumberInfo> many(60, {u"+1"_s, 1});
    many.front().number = myLine;
    model->numbers = many;
    const QString mine = u"(212) 555-9999"_s;
    user.click(mine, QAccessible::ButtonMenu);
    EXPECT_GE(user.area(mine, QAccessible::MenuItem).top(), 28);
    user.key(Qt::Key_Escape);
    model->openSettings();
    user.settle();
    // So many that those before the chosen one have no room above it, and one that the window is
    // hardly wide enough for.
    model->numbers = {{u"+1"_s, 9},
                      {u"+2"_s, 8},
                      {u"+3"_s, 7},
                      {u"+4"_s, 6},
                      {myLine, 5},
                      {u"+6"_s, 4},
                      {u"+4"_s.repeated(24), 3}};
    user.settle();
    QWindow* settings = WindowDriver::windowTitled(u"Settings"_s);
    const QPoint picker = user.place(u"Send from"_s, QAccessible::ComboBox, settings);
    user.clickAt(picker, settings);
    user.clickAt(picker, settings);
    const QString chosen = u"(212) 555-9999  (5 messages)"_s;
    EXPECT_EQ(user.place(chosen, QAccessible::MenuItem, settings).y(), picker.y());
    for (const auto& [way, next] : {std::pair(QPoint(1, 0), "+4"), {QPoint(1, -24), "+3"}}) {
        const QPoint rest = picker + way;
        QTest::mouseMove(settings, rest);
        user.settle();
        user.key(Qt::Key_Up);
        QTest::mouseMove(settings, rest + QPoint(1, 0));
        user.settle();
        user.key(Qt::Key_Return);
        EXPECT_EQ(model->config().senderNumber, QLatin1String(next))
            << "the second click chose, or the pointer that lay over another";
        model->setSenderNumber(myLine);
        user.clickAt(picker, settings);
    }
}

}  // namespace

}  // namespace velmora
