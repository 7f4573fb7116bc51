#include "ui/settings_model.h"

#include "app/app_home.h"
#include "ui/clock_fields.h"
#include "ui/number_text.h"

namespace velmora {

namespace {

class Settings : public AppHome {
  protected:
    SettingsModel& settings() {
        view.emplace(*model);
        return *view;
    }

    void number(const QString& line, int count) {
        for (int i = 0; i < count; ++i)
            thread(u"+12125550102"_s, line);
    }

    void startRun() {
        model->setCurrentTemplate(u"Hi"_s);
        model->selectShown();
        model->startRun();
        ASSERT_TRUE(model->runner().isActive());
    }

    std::optional<SettingsModel> view;
};

// Catches a wrong count, a number without messages that claims some, and a chosen number that
// vanishes from the choice because this computer does not know it any more.
TEST_F(Settings, OffersTheNumbersAndTheOneThatIsNotHere) {
    started();
    model->numbers = {{myLine, 42}, {myOtherLine, 0}};
    EXPECT_EQ(settings().senderOptions(),
              (QStringList{u"Choose a number"_s, u"(212) 555-9999  (42 messages)"_s,
                           u"(212) 555-8888"_s}));
    EXPECT_EQ(view->senderIndex(), 1);

    model->setSenderNumber(u"+12125557777"_s);
    EXPECT_EQ(view->senderOptions().last(), u"(212) 555-7777  (not found on this Mac)"_s);
    EXPECT_EQ(view->senderOptions().size(), 4);
    EXPECT_EQ(view->senderIndex(), 3);

    model->numbers = std::vector<NumberInfo>();
    EXPECT_TRUE(view->numbersMissing());
    EXPECT_EQ(view->senderIndex(), 1);
    view->chooseSender(0);
    EXPECT_EQ(stored().senderNumber, QString());
    EXPECT_EQ(view->senderIndex(), 0);
    EXPECT_EQ(view->senderOptions(), QStringList{u"Choose a number"_s});
}

// Catches a choice that stores another entry's number or leaves the people checked against the old
// one.
TEST_F(Settings, ChoosingANumberChecksTheListAgainstIt) {
    number(myOtherLine, 1);
    withFriends();
    ASSERT_EQ(settings().senderOptions().size(), 3);
    view->chooseSender(1);
    EXPECT_EQ(stored().senderNumber, model->numbers.value()[0].number);
    const std::optional<QString> before = recipient(u"ann"_s).issue;
    view->chooseSender(2);
    EXPECT_EQ(stored().senderNumber, model->numbers.value()[1].number);
    EXPECT_NE(recipient(u"ann"_s).issue, before);
    view->chooseSender(3);
    EXPECT_EQ(stored().senderNumber, model->numbers.value()[1].number);
}

// Catches a pacing control that stores nothing, another field or a value out of range.
TEST_F(Settings, PacingIsStored) {
    started();
    settings().setDelayMin(45.5);
    view->setDelayMax(120);
    view->setStart(7, 5);
    view->setEnd(21, 30);
    EXPECT_EQ(stored().delayMin, 45.5);
    EXPECT_EQ(stored().delayMax, 120);
    EXPECT_EQ(stored().quietStart, u"07:05"_s);
    EXPECT_EQ(stored().quietEnd, u"21:30"_s);
    EXPECT_EQ(view->startHour(), 7);
    EXPECT_EQ(view->startMinute(), 5);
    EXPECT_EQ(view->endHour(), 21);
    EXPECT_EQ(view->endMinute(), 30);

    EXPECT_EQ(view->failuresText(), u"Pause after 3 failures in a row"_s);
    view->setMaxFailures(11);
    EXPECT_EQ(stored().maxFailures, 10);
    view->setMaxFailures(0);
    EXPECT_EQ(stored().maxFailures, 1);
    EXPECT_EQ(view->failuresText(), u"Pause after 1 failures in a row"_s);

    model->editConfig([](AppConfig& config) { config.quietStart.clear(); });
    EXPECT_EQ(view->startHour(), 10);
    EXPECT_EQ(view->startMinute(), 0);
}

// Catches settings that move under a run, a field's late commit included, and a view that is not
// told that they are free again.
TEST_F(Settings, NumberAndPacingAreLockedDuringARun) {
    withFriends();
    settings().setTestPhone(u"212 555 0102"_s);
    ASSERT_TRUE(view->canSendTest());
    startRun();
    const AppConfig before = model->config();
    EXPECT_TRUE(view->locked());
    EXPECT_FALSE(view->canSendTest());
    view->chooseSender(0);
    view->setDelayMin(1);
    view->setDelayMax(2);
    view->setStart(1, 1);
    view->setEnd(2, 2);
    view->setMaxFailures(7);
    view->sendTest();
    EXPECT_EQ(model->config(), before);
    EXPECT_EQ(view->testResult(), QString());

    int told = 0;
    QObject::connect(&*view, &SettingsModel::changed, [&] { ++told; });
    model->runner().stop();
    ASSERT_TRUE(world.clock.runUntilIdle());
    EXPECT_FALSE(view->locked());
    EXPECT_GT(told, 0);
}

// Catches a test that is sent without a number or twice at once, and an outcome that is not shown.
TEST_F(Settings, SendsOneTestAtATime) {
    started();
    EXPECT_FALSE(settings().canSendTest());
    view->sendTest();
    EXPECT_EQ(view->testResult(), QString());

    view->setTestPhone(u"(212) 555-0102"_s);
    ASSERT_TRUE(view->canSendTest());
    view->sendTest();
    EXPECT_FALSE(view->canSendTest());
    EXPECT_EQ(view->testResult(), u"Sending and checking which line it used..."_s);
    world.clock.advance(60);
    EXPECT_TRUE(view->canSendTest());
    EXPECT_EQ(view->testResult(),
              u"Sent by iMessage from (212) 555-9999. That matches your sending number."_s);
}

// Catches a number that is shown with grouping or too few digits, and text that passes for one.
TEST(NumberField, ReadsAndWritesDecimalNumbers) {
    EXPECT_EQ(NumberText::shown(45), u"45"_s);
    EXPECT_EQ(NumberText::shown(1234.125), u"1234.125"_s);
    EXPECT_EQ(NumberText::value(u" 45.5 "_s), 45.5);
    for (const QString& text : {u""_s, u"4 5"_s, u"soon"_s, u"inf"_s, u"nan"_s})
        EXPECT_FALSE(NumberText::readable(text)) << text.toStdString();
}

// Catches typed digits that don't become one number or leave the range, and steps that don't wrap.
TEST(ClockFields, TakesDigitsAndSteps) {
    ClockFields clock;
    QObject::connect(&clock, &ClockFields::picked, [&](int hour, int minute) {
        clock.setHour(hour);
        clock.setMinute(minute);
    });
    const auto shows = [&] { return clock.hourText() + clock.separator() + clock.minuteText(); };
    clock.typeHour(u"1"_s);
    clock.typeHour(u"7"_s);
    EXPECT_EQ(shows(), u"17:00"_s);
    clock.typeHour(u"2"_s);
    clock.typeHour(u"9"_s);
    EXPECT_EQ(shows(), u"09:00"_s);
    clock.endTyping();
    clock.typeMinute(u"4"_s);
    clock.typeMinute(u"5"_s);
    EXPECT_FALSE(clock.typeMinute(u"x"_s));
    EXPECT_EQ(shows(), u"09:45"_s);
    clock.stepMinute(15);
    clock.stepHour(-10);
    EXPECT_EQ(shows(), u"23:00"_s);
}

// Catches a midnight or noon that counts as the other, where the language counts to twelve.
TEST(ClockFields, CountsToTwelveWhereTheLanguageDoes) {
    const QLocale before;
    QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates));
    ClockFields clock;
    QObject::connect(&clock, &ClockFields::picked, [&](int hour, int) { clock.setHour(hour); });
    EXPECT_EQ(clock.hourText() + clock.halfText(), u"12AM"_s);
    clock.typeHour(u"1"_s);
    clock.typeHour(u"1"_s);
    clock.typeHalf(u"p"_s);
    EXPECT_EQ(clock.hour(), 23);
    clock.stepHour(1);
    EXPECT_EQ(clock.hour(), 0);
    clock.stepHalf(1);
    EXPECT_EQ(clock.hourText() + clock.halfText(), u"12PM"_s);
    QLocale::setDefault(before);
}

}  // namespace

}  // namespace velmora
