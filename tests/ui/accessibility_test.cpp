#include <QAccessible>

#include "app/app_home.h"
#include "ui/window_driver.h"

namespace velmora {

namespace {

class Accessibility : public AppHome {
  protected:
    /// Friends on the screen, with Ann checked.
    WindowDriver& show() {
        withFriends().setSenderNumber(myLine);
        model->setCurrentTemplate(u"Hi {first_name}{custom_note}"_s);
        model->setSelected(u"ann"_s, true);
        user = std::make_unique<WindowDriver>(*model, world.clock);
        user->settle();
        return *user;
    }

    static std::string lines(const QStringList& spoken) {
        return '\n' + spoken.join(u'\n').toStdString();
    }

    std::unique_ptr<WindowDriver> user;
};

// Catches a control without role, name, state or value, a row that is not one element around what
// it holds, and an order that is not that of reading.
TEST_F(Accessibility, TheWindowIsSpokenFromTopToBottom) {
    const QStringList all = show().spoken();
    const qsizetype composer = all.indexOf(u"Heading, Message"_s);
    EXPECT_EQ(lines(all.first(all.indexOf(u"ListItem, Joanne, not selected"_s))), R"(
Window, Friends
MenuBar, 
ButtonMenu, Velmora
ButtonMenu, File
ButtonMenu, Edit
ButtonMenu, People
ButtonMenu, Window
ButtonMenu, Help
Heading, Lists
List, Lists
ListItem, All Contacts, 3
ListItem, Friends, 3, selected
Slider, Sidebar width, value 230
Heading, Friends
StaticText, 1 of 3 selected
Grouping, Show
RadioButton, All, checked
RadioButton, Selected, unchecked
EditableText, Search people
Button, Select All
Button, Clear All
List, People
ListItem, Ann Lee, selected
CheckBox, Select Ann Lee, checked
StaticText, Ann Lee
StaticText, Hi Ann
Button, Add note
StaticText, (212) 555-0101
StaticText, iMessage (212) 555-9999
ListItem, Bob Stone, not selected
CheckBox, Select Bob Stone, unchecked
StaticText, Bob Stone
StaticText, New thread. Your iPhone uses their preferred line, or your default line.
StaticText, Hi Bob
Button, Add note
StaticText, (212) 555-0102
StaticText, No thread yet)");
    EXPECT_EQ(lines(all.sliced(composer)), R"(
Heading, Message
EditableText, Message, value Hi {first_name}{custom_note}
ButtonMenu, Insert
StaticText, Insert adds a first name, a note, or another version.
Heading, Send from
ButtonMenu, (212) 555-9999
Button, Send to 1…)");
}

TEST_F(Accessibility, SettingsAndSheetsAreSpokenToo) {
    WindowDriver& window = show();
    model->openSettings();
    window.settle();
    QWindow* settings = WindowDriver::windowTitled(u"Settings"_s);
    EXPECT_EQ(lines(window.spoken({}, settings)), R"(
Window, Settings
Grouping, Sending number
Heading, Sending number
StaticText, Send from
ComboBox, Send from
StaticText, Your iPhone picks the line for SMS. Velmora checks every send against this number and pauses if one goes out on the other line.
Grouping, Pacing
Heading, Pacing
StaticText, Wait between texts
EditableText, Shortest wait between texts in seconds, value 30
StaticText, to
EditableText, Longest wait between texts in seconds, value 60
StaticText, seconds
StaticText, Send between
Grouping, From
SpinBox, From hour, value 10
SpinBox, From minute, value 0
StaticText, and
Grouping, Until
SpinBox, Until hour, value 21
SpinBox, Until minute, value 0
SpinBox, Pause after 3 failures in a row, value 3
StaticText, Texts go out one at a time, like you'd send them yourself, and only during the hours you set. A run stops on its own if something looks wrong.
Grouping, Test message
Heading, Test message
StaticText, Number
EditableText, Number
Button, Send Test, disabled
StaticText, Sends one text and reports which line it went out on.)");
    settings->close();
    model->confirmingRun = true;
    window.settle();
    EXPECT_EQ(lines(window.spoken(u"Send to 1 person?"_s)), R"(
Dialog, Send to 1 person?
Heading, Send to 1 person?
StaticText, Example for Ann Lee
StaticText, Hi Ann
StaticText, From
StaticText, (212) 555-9999
StaticText, Pace
StaticText, 30 to 60 seconds apart
StaticText, Run name
EditableText, Run name, value Friends 2025-03-14
StaticText, Keep your Mac open and your iPhone on until it finishes. Sending the same run again skips anyone already sent.
Button, Cancel
Button, Start Sending)");
}

// Catches a run whose progress, locks and log nobody hears of.
TEST_F(Accessibility, ARunIsSpoken) {
    WindowDriver& window = show();
    model->requestRun();
    model->confirmRun();
    window.until(
        [&] { return model->runner().nextIn.value().has_value() || !model->runner().isActive(); });
    for (const QString& each : window.spoken())
        std::puts(qPrintable(each));
}

}  // namespace

}  // namespace velmora
