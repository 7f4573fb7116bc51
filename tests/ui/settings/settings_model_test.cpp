#include "ui/settings/settings_model.h"

#include <QSignalSpy>

#include "app/app_home.h"
#include "ui/controls/clock_fields.h"
#include "ui/controls/number_text.h"

using namespace velmora;

using Settings = AppHome;

// Catches a chosen number that vanishes because this computer does not know it any more, and a
// choice that stores another number or leaves the people checked against the old one.
TEST_F(Settings, OffersTheNumbersAndChecksTheListAgainstTheChosenOne) {
    SettingsModel view(withFriends());
    model->numbers = {{myLine, 42}, {myOtherLine, 0}};
    EXPECT_EQ(view.senderOptions().join(u'|'),
              u"Choose a number|(212) 555-9999  (42 messages)|(212) 555-8888"_s);
    for (const int place : {2, 3})
        view.chooseSender(place);
    EXPECT_EQ(stored().senderNumber, myOtherLine);
    EXPECT_TRUE(recipient(u"ann"_s).issue) << "her thread is on the other line";
    model->setSenderNumber(u"+12125557777"_s);
    EXPECT_EQ(view.senderOptions().last(), u"(212) 555-7777  (not found on this Mac)"_s);
    EXPECT_EQ(view.senderIndex(), 3);
    model->numbers = std::vector<NumberInfo>();
    EXPECT_EQ(view.senderIndex(), 1);
    view.chooseSender(0);
    EXPECT_EQ(stored().senderNumber, QString());
    EXPECT_EQ(view.senderOptions(), QStringList{u"Choose a number"_s});
}

// Catches a pacing control that stores nothing, another field or a value out of range; settings
// that a field's late commit moves under a run, and a view that is not told when they are free; a
// test without a number or twice at once, and one whose end is lost.
TEST_F(Settings, PacingIsStoredAndATestSentButNotDuringARun) {
    SettingsModel view(started());
    const auto change = [&](int by) {
        view.setDelayMin(45.5 + by);
        view.setDelayMax(120 + by);
        view.setStart(7 + by, 5);
        view.setEnd(21 + by, 30);
        view.setMaxFailures(11 - 10 * by);
    };
    change(0);
    const AppConfig before = stored();
    EXPECT_EQ((QList{before.delayMin, before.delayMax}), (QList{45.5, 120.0}));
    EXPECT_EQ(before.quietStart + u'-' + before.quietEnd, u"07:05-21:30"_s);
    EXPECT_EQ(before.maxFailures, 10);
    const QList shown{view.startHour(), view.startMinute(), view.endHour(), view.endMinute()};
    EXPECT_EQ(shown, (QList{7, 5, 21, 30}));

    EXPECT_FALSE(view.canSendTest());
    view.setTestPhone(u"(212) 555-0102"_s);
    ASSERT_TRUE(view.canSendTest());
    view.sendTest();
    EXPECT_FALSE(view.canSendTest());
    world.clock.advance(60);
    EXPECT_TRUE(view.canSendTest());
    EXPECT_TRUE(view.testResult().startsWith(u"Sent by iMessage from (212)\u00A0555-9999."));

    model->selectShown();
    model->startRun();
    const AppConfig begun = stored();
    change(1);
    view.chooseSender(0);
    EXPECT_EQ(stored(), begun);
    const QSignalSpy told(&view, &SettingsModel::changed);
    model->runner().stop();
    ASSERT_TRUE(world.clock.runUntilIdle());
    EXPECT_FALSE(view.locked() || told.isEmpty());
    view.setMaxFailures(0);
    EXPECT_EQ(view.failuresText(), u"Pause after 1 failures in a row"_s);
}

// Catches a number that is shown with grouping or too few digits, and text that passes for one.
TEST(NumberField, ReadsAndWritesDecimalNumbers) {
    const auto spoken = speaking(u"el_GR"_s);
    EXPECT_EQ(NumberText::shown(1234.125), u"1234,125");
    EXPECT_EQ(NumberText::value(u" 1234,125 "_s), 1234.125);
    EXPECT_EQ(NumberText::value(u"45.5"_s), 45.5);
    for (const QString& text : {u""_s, u"4 5"_s, u"soon"_s, u"inf"_s, u"nan"_s})
        EXPECT_FALSE(NumberText::readable(text)) << text.toStdString();
}

// Catches typed digits that don't become one number or leave the range, steps that don't wrap, and
// a midnight or noon that counts as the other where the language counts to twelve.
TEST(ClockFields, TakeDigitsAndSteps) {
    const auto follow = [](ClockFields& clock) {
        QObject::connect(&clock, &ClockFields::picked, [&clock](int hour, int minute) {
            clock.setHour(hour);
            clock.setMinute(minute);
        });
    };
    const auto british = speaking(u"en_GB"_s);
    ClockFields clock;
    follow(clock);
    EXPECT_TRUE(clock.typeHour(u"2"_s) && clock.typeHour(u"9"_s));
    EXPECT_TRUE(clock.typeMinute(u"4"_s) && clock.typeMinute(u"5"_s));
    EXPECT_FALSE(clock.typeMinute(u"x"_s));
    EXPECT_EQ(clock.hourText() + clock.separator() + clock.minuteText(), u"09:45"_s);
    clock.stepMinute(15);
    clock.stepHour(-10);
    EXPECT_EQ(clock.hour() * 60 + clock.minute(), 23 * 60);

    const auto american = speaking(u"en_US"_s);
    ClockFields twelve;
    follow(twelve);
    EXPECT_EQ(twelve.hourText() + twelve.halfText(), u"12AM"_s);
    twelve.stepHalf(1);
    EXPECT_EQ(twelve.hourText() + twelve.halfText(), u"12PM"_s);
    EXPECT_TRUE(twelve.typeHour(u"1"_s) && twelve.typeHour(u"1"_s));
    EXPECT_EQ(twelve.hour(), 23);
}
