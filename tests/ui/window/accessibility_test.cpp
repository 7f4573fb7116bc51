#include <QDir>

#include "app/app_home.h"
#include "storage/files.h"
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

    /// Expects what is written in a file beside this one, or in that of the language where it has
    /// one.
    static void expectSpoken(const QStringList& lines, const QString& name) {
        const QDir files(QStringLiteral(VELMORA_SPOKEN));
        const QString own = files.filePath(QLocale().name() + u'/' + name);
        QByteArray expected =
            readFile(QFile::exists(own) ? own : files.filePath(name)).value_or("(no file)");
        const QString eleven = QLocale().toString(QTime(11, 0), QLocale::ShortFormat);
        EXPECT_EQ(lines.join(u'\n').toStdString() + '\n',
                  expected.replace("{11:00}", eleven.toUtf8()).toStdString());
    }

    std::unique_ptr<WindowDriver> user;
};

// Catches a control without role, name, state or value, a row that is not one element around what
// it holds, an order that is not that of reading, a run whose progress and locks nobody hears of,
// an alert without its sentence, and what lies under it within reach.
TEST_F(Accessibility, WhatIsOnTheScreenIsSpoken) {
    home.writeMessages(messagesOnLine(myOtherLine));
    WindowDriver& window = show();
    expectSpoken(window.spoken(), u"window"_s);
    model->openSettings();
    window.settle();
    QWindow* settings = WindowDriver::windowTitled(u"Settings"_s);
    expectSpoken(window.spoken({}, settings), u"settings"_s);
    settings->close();
    model->requestRun();
    ASSERT_TRUE(window.until([&] { return window.shows(u"Start Sending"_s); }));
    expectSpoken(window.spoken(), u"confirm"_s);
    model->confirmRun();
    ASSERT_TRUE(window.until([&] { return window.shows(u"Resume"_s); }));
    expectSpoken(window.spoken(), u"run"_s);
    model->alert = u"Something is wrong."_s;
    model->showingFDAHelp = true;
    ASSERT_TRUE(window.until([&] { return window.shows(u"OK"_s); }));
    expectSpoken(window.spoken(), u"alert"_s);
    EXPECT_EQ(window.complaints().join(u'\n').toStdString(), "");
}

}  // namespace

}  // namespace velmora
