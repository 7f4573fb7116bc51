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
    const qsizetype people = all.indexOf(u"CheckBox, Select Joanne, unchecked"_s) - 1;
    const qsizetype composer = all.indexOf(u"Heading, Message"_s);
    EXPECT_EQ(lines(all.first(people)), R"(
Window, Friends | Friends
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
Grouping, Show | All. Show everyone, or only the people you checked
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
ListItem, Bob Stone, not selected, New thread. Your iPhone uses their preferred line, or your default line.
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
ButtonMenu, (212) 555-9999 | The number your texts come from
Button, Send to 1…)");
}

TEST_F(Accessibility, SettingsAndSheetsAreSpokenToo) {
    WindowDriver& window = show();
    model->openSettings();
    window.settle();
    QWindow* settings = WindowDriver::windowTitled(u"Settings"_s);
    EXPECT_EQ(lines(window.spoken({}, settings)), R"(
Window, Settings | Settings
Grouping, Sending number
Heading, Sending number
StaticText, Send from
ComboBox, Send from | (212) 555-9999  (1 messages)
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
SpinBox, Until hour, value 20
SpinBox, Until minute, value 0
SpinBox, Pause after 3 failures in a row, value 3
StaticText, Texts go out one at a time, like you'd send them yourself, and only during the hours you set. A run stops on its own if something looks wrong.
Grouping, Test message
Heading, Test message
StaticText, Number
EditableText, Number
Button, Send Test | Unavailable
StaticText, Sends one text and reports which line it went out on.)");
    settings->close();
    model->confirmingRun = true;
    window.settle();
    EXPECT_EQ(lines(window.spoken()), R"(
Window, Friends | Friends
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

// Catches a run whose progress and locks nobody hears of, an alert without its sentence, and what
// lies under it within reach.
TEST_F(Accessibility, ARunAndItsAlertsAreSpoken) {
    home.writeMessages(messagesOnLine(myOtherLine));
    WindowDriver& window = show();
    model->requestRun();
    model->confirmRun();
    ASSERT_TRUE(window.until([&] { return window.shows(u"Resume"_s); }));
    const QStringList spoken = window.spoken();
    const qsizetype composer = spoken.indexOf(u"Heading, Message"_s);
    EXPECT_TRUE(spoken.contains(u"List, Lists | Unavailable"_s));
    EXPECT_EQ(lines(spoken.sliced(composer)), R"(
Heading, Message
EditableText, Message, value Hi {first_name}{custom_note} | Unavailable
ButtonMenu, Insert | Unavailable
StaticText, Insert adds a first name, a note, or another version.
Heading, Send from
ButtonMenu, (212) 555-9999 | Unavailable
ProgressBar, Progress | 1 of 1
StaticText, 1 of 1 · Ann Lee got it from (212) 555-8888, not (212) 555-9999. Fix the line on your iPhone, then resume.
Button, Stop
Button, Resume
Heading, Activity
List, Activity
ListItem, Ann Lee, sent · iMessage, 11:00:04)");

    model->alert = u"Something is wrong."_s;
    model->showingFDAHelp = true;
    ASSERT_TRUE(window.until([&] { return window.shows(u"OK"_s); }));
    const QStringList all = window.spoken();
    EXPECT_EQ(all.value(1), u"AlertMessage, Velmora | Something is wrong."_s);
    EXPECT_EQ(all.size(), 5) << lines(all);
    EXPECT_EQ(window.complaints().join(u'\n').toStdString(), "");
}

}  // namespace

}  // namespace velmora
