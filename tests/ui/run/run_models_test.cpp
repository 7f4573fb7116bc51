#include <QAbstractItemModelTester>
#include <QSignalSpy>
#include <limits>

#include "app/app_home.h"
#include "core/phone.h"
#include "ui/compose/compose_model.h"
#include "ui/language.h"
#include "ui/run/activity_model.h"
#include "ui/run/run_display.h"
#include "ui/run/run_model.h"

namespace velmora {

namespace {

using RunModels = AppHome;

// Catches a log upside down, and a list that starts over with every line or every later finding.
TEST_F(RunModels, TheNewestLineComesFirstAndTheOthersStay) {
    home.writeMessages(messagesOnLine(
        myLine, {{u"+12125550101"_s, R"({"iMessage": {"sentAfter": 30, "deliveredAfter": 30}})"},
                 {u"+12125550102"_s, R"({"iMessage": {"error": 22}, "SMS": {"error": 22}})"}}));
    withFriends().selectShown();
    ActivityModel activity(model->runner());
    const QAbstractItemModelTester tester(&activity,
                                          QAbstractItemModelTester::FailureReportingMode::Fatal);
    const QSignalSpy resets(&activity, &QAbstractItemModel::modelReset);
    const QSignalSpy inserts(&activity, &QAbstractItemModel::rowsInserted);
    model->startRun();
    ASSERT_TRUE(world.clock.runUntilIdle());
    QStringList lines;
    for (int row = 0; row < activity.rowCount(); ++row) {
        const auto entry =
            activity.index(row).data(ActivityModel::entryRole).value<ActivityEntry>();
        lines.append(entry.name + u' ' + QVariant::fromValue(entry.tone).toString());
    }
    EXPECT_EQ(lines, (QStringList{u"Joanne green"_s, u"Bob Stone red"_s, u"Ann Lee green"_s}));
    EXPECT_EQ(inserts.size(), 3);
    model->loadList();
    EXPECT_EQ(resets.size(), 0) << "the same log read again";
}

// Catches a status shown as another one, and details with gaps, underscores or numbers that break.
TEST(RunDisplay, AnEntryShowsItsStatusDetailsAndTime) {
    LogEntry entry;
    entry.time = Moment{763657200.0};
    entry.status = u"sent_unverified"_s;
    entry.service = u"SMS"_s;
    entry.detail = u"Check (212) 555-0101."_s;
    const Language american(u"en_US"_s);
    const ActivityEntry shown = activityEntry(entry);
    EXPECT_EQ(shown.tone, Tone::orange);
    EXPECT_EQ(shown.details, u"sent unverified \u00B7 SMS \u00B7 Check (212)\u00A0555-0101."_s);
    EXPECT_EQ(shown.clockTime.simplified(), u"11:00 AM"_s);
    entry.status.clear();
    entry.detail.clear();
    EXPECT_EQ(activityEntry(entry).details, u"SMS"_s);
}

// Catches rounding instead of cutting, and a delay that no whole number can hold.
TEST(RunDisplay, ThePaceIsCutToWholeSecondsWhereThereAreAny) {
    const auto pace = [](double from, double to) {
        AppConfig config;
        config.delayMin = from;
        config.delayMax = to;
        return paceLine(config);
    };
    EXPECT_EQ(pace(45.9, -1.5), u"45 to -1 seconds apart"_s);
    EXPECT_EQ(pace(0x1p63, std::numeric_limits<double>::infinity()),
              u"9223372036854776000 to inf seconds apart"_s);
}

// Catches inserts at the wrong place or lost, and a hint that does not follow; a number menu that
// marks or chooses another number, or is rebuilt for every letter.
TEST_F(RunModels, InsertsGoToTheEndAndTheNumberIsChosenFromAll) {
    thread(u"+12125550102"_s, myOtherLine);
    withFriends().setSenderNumber(myLine);
    ComposeModel compose(*model);
    const QSignalSpy announced(&compose, &ComposeModel::senderChanged);
    compose.setMessage(QString());
    const QString insertHint = u"Insert adds a first name, a note, or another version."_s;
    for (const int place : {0, 1, 3}) {
        EXPECT_EQ(compose.hint(), insertHint);
        compose.insert(place);
    }
    EXPECT_NE(compose.hint(), insertHint);
    EXPECT_EQ(stored().templates[u"friends"_s], u"{first_name}{custom_note}\n---\n"_s);

    EXPECT_EQ(announced.size(), 0);
    compose.chooseSender(model->numbers.value().front().number == myLine ? 1 : 0);
    EXPECT_EQ(model->config().senderNumber, myOtherLine);
    EXPECT_EQ(compose.senderTitle(), displayPhone(myOtherLine));
    EXPECT_EQ(announced.size(), 1);
    EXPECT_EQ(compose.senderEntries().value(compose.senderIndex()).toString(),
              displayPhone(myOtherLine));
}

// Catches a send section that offers what the run's state forbids or hides how it stands.
TEST_F(RunModels, TheSendSectionFollowsTheRun) {
    using Stage = RunModel::Stage;
    ComposeModel compose(withFriends());
    RunModel run(*model);
    EXPECT_FALSE(run.canSend() || run.showsStatus() || run.showsActivity());
    model->selectShown();
    model->startRun();
    world.clock.advance(0.1);
    EXPECT_EQ(run.stage(), Stage::running);
    EXPECT_EQ(run.status(), u"0 of 3 \u00B7 Sending to Ann Lee\u2026"_s);
    world.clock.advance(25);
    EXPECT_TRUE(run.status().startsWith(u"1 of 3 \u00B7 Next in "_s)) << run.status().toStdString();
    EXPECT_EQ(run.progress() / run.progressTotal(), 1.0 / 3);
    EXPECT_TRUE(run.showsActivity());
    compose.setMessage(u"Too late"_s);
    EXPECT_NE(compose.message(), u"Too late"_s);
    run.stop();
    EXPECT_EQ(run.stage(), Stage::stopping);
    ASSERT_TRUE(world.clock.runUntilIdle());
    EXPECT_EQ(run.stage(), Stage::ready);
    EXPECT_EQ(run.status(), u"1 of 3 \u00B7 Stopped after 1 of 3."_s);
}

}  // namespace

}  // namespace velmora
