#include <QDir>
#include <QGuiApplication>
#include <QRegularExpression>

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

    /// Does each action that is still to be done, every time in a new window that `prepared` has
    /// brought where it should be, and answers those that changed nothing.
    QStringList idleActions(const std::function<QWindow*()>& prepared) {
        QStringList idle;
        for (;;) {
            show();
            QWindow* window = prepared();
            user->settle();
            const auto [element, action] = nextAction(window);
            if (element == nullptr)
                return idle;
            const bool isSo =
                element->state().focused || element->state().selected || element->state().checked;
            const QString name = element->text(QAccessible::Name) + u' ' + action;
            const QStringList before = everything();
            ::testing::internal::CaptureStderr();
            element->actionInterface()->doAction(action);
            user->settle();
            // A page or another program that would be opened is told there.
            if (::testing::internal::GetCapturedStderr().empty() && everything() == before && !isSo)
                idle.append(name);
        }
    }

    std::pair<QAccessibleInterface*, QString> nextAction(QWindow* window) {
        static const QRegularExpression digit(u"\\d"_s);
        for (QAccessibleInterface* each : user->elements(window)) {
            auto* doer = each->actionInterface();
            if (doer == nullptr ||
                each->text(QAccessible::Description).contains(u"Unavailable"_s) ||
                each->text(QAccessible::Name).startsWith(u"Quit"))
                continue;
            for (const QString& action : doer->actionNames()) {
                const auto role = QVariant::fromValue(each->role()).toString();
                QString key = role + each->text(QAccessible::Name).section(u',', 0, 0) + action;
                key.remove(digit);
                if (action == QAccessibleActionInterface::setFocusAction() || done.contains(key))
                    continue;
                done.insert(key);
                return {each, action};
            }
        }
        return {};
    }

    std::unique_ptr<WindowDriver> user;

    QSet<QString> done;
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
    const auto menu = [&](int place) {
        user->key(Qt::Key_F10);
        for (int turn = 0; turn < place; ++turn)
            user->key(Qt::Key_Right);
    };
    QList<std::function<void()>> states{
        [] {},
        [&] { user->click(u"Insert"_s); },
        [&] { user->click(u"(212) 555-9999"_s, QAccessible::ButtonMenu); },
        [&] { model->confirmingRun = true; },
        [&] { model->alert = u"No."_s; },
        [&] { model->showingFDAHelp = true; },
        [&] { model->editConfig([](AppConfig& config) { config.termsAccepted.clear(); }); },
        [&] { model->setSenderNumber({}); },
        [&] { model->numbers = std::vector<NumberInfo>(), model->setSenderNumber({}); },
        [&] {
            model->runner().total = 2;
            model->runner().state = Runner::State::paused;
        }};
    for (int place = 0; place < 6; ++place)
        states.append([&menu, place] { menu(place); });
    QStringList idle;
    for (const auto& state : states) {
        idle += idleActions([&]() -> QWindow* {
            state();
            world.clock.advance(1);  // more than a double click
            return &user->window();
        });
    }
    idle += idleActions([&]() -> QWindow* {
        model->openSettings();
        user->settle();
        return WindowDriver::windowTitled(u"Settings"_s);
    });
    EXPECT_EQ(idle.join(u'|').toStdString(), "");
    EXPECT_GT(done.size(), 50);
}

}  // namespace

}  // namespace velmora
