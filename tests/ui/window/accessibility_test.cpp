#include <QDir>
#include <QGuiApplication>

#include "app/app_home.h"
#include "storage/files.h"
#include "ui/window_driver.h"

namespace velmora {

namespace {

class Accessibility : public AppHome {
  protected:
    /// Friends on the screen, with Ann checked.
    WindowDriver& show() {
        user.reset();
        withFriends().setSenderNumber(myLine);
        model->setCurrentTemplate(u"Hi {first_name}{custom_note}"_s);
        model->setSelection({u"ann"_s});
        model->testPhone = u"212 555 0102"_s;
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

    /// All that a person can see or hear of the program.
    [[nodiscard]] QStringList everything() const {
        QStringList all{user->focused(),
                        QString::fromUtf8(encodeConfig(model->config()).value_or("(none)"))};
        for (QWindow* each : QGuiApplication::allWindows())
            if (each->isVisible())
                all += user->spoken({}, each);
        return all;
    }

    /// Does each action of each control in turn, every time in a new window that `prepared` has
    /// brought where it should be, and answers those that changed nothing.
    QStringList idleActions(const std::function<QWindow*()>& prepared) {
        const QString off = u"Unavailable"_s;
        QStringList idle;
        for (qsizetype done = 0, count = 1; done < count; ++done) {
            QWindow* window = prepared();
            QList<std::pair<QAccessibleInterface*, QString>> actions;
            for (QAccessibleInterface* each : user->elements(window)) {
                auto* doer = each->actionInterface();
                if (doer == nullptr || each->text(QAccessible::Description).contains(off))
                    continue;
                for (const QString& action : doer->actionNames())
                    if (action != QAccessibleActionInterface::setFocusAction())
                        actions.append({each, action});
            }
            count = actions.size();
            const auto& [element, action] = actions[done];
            const QString name = element->text(QAccessible::Name) + u' ' + action;
            const bool isSo =
                element->state().focused || element->state().selected || element->state().checked;
            const QStringList before = everything();
            element->actionInterface()->doAction(action);
            user->settle();
            if (everything() == before && !isSo)
                idle.append(name);
        }
        return idle;
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

// Catches a control that says it can be pressed, and is not.
TEST_F(Accessibility, EveryActionOfEveryControlDoesItsWork) {
    EXPECT_EQ(idleActions([&]() -> QWindow* { return &show().window(); }), QStringList());
    EXPECT_EQ(idleActions([&]() -> QWindow* {
                  show();
                  model->openSettings();
                  user->settle();
                  return WindowDriver::windowTitled(u"Settings"_s);
              }),
              QStringList());
}

}  // namespace

}  // namespace velmora
