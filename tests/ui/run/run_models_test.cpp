#include <QSignalSpy>

#include "app/app_home.h"
#include "ui/compose/compose_model.h"
#include "ui/run/activity_model.h"
#include "ui/run/run_display.h"
#include "ui/run/run_model.h"

using namespace velmora;

using RunModels = AppHome;

// Catches a log upside down, and a list that starts over with every line or every later finding.
TEST_F(RunModels, TheNewestLineComesFirstAndTheOthersStay) {
    home.writeMessages(messagesOnLine(myLine, {{u"+12125550102"_s, R"({"error": 22})"}}));
    withFriends().selectShown();
    ActivityModel activity(model->runner());
    const QSignalSpy resets(&activity, &QAbstractItemModel::modelReset);
    const QSignalSpy inserts(&activity, &QAbstractItemModel::rowsInserted);
    model->startRun();
    ASSERT_TRUE(world.clock.runUntilIdle());
    QStringList lines;
    for (int row = 0; row < activity.rowCount(); ++row) {
        const QVariant shown = activity.index(row).data(ActivityModel::entryRole);
        const auto entry = shown.value<ActivityEntry>();
        lines.append(entry.name + u' ' + QVariant::fromValue(entry.tone).toString());
    }
    EXPECT_EQ(lines, (QStringList{u"Joanne green"_s, u"Bob Stone red"_s, u"Ann Lee green"_s}));
    EXPECT_EQ(inserts.size(), 3);
    model->loadList();
    EXPECT_EQ(resets.size(), 0) << "the same log read again";
}

// Catches a status shown as another one, and details with gaps, underscores or numbers that break;
// a pace rounded instead of cut, and one that no whole number can hold.
TEST(RunDisplay, AnEntryAndThePaceAreWords) {
    LogEntry entry;
    entry.status = u"sent_unverified"_s;
    entry.detail = u"Check (212) 555-0101."_s;
    const ActivityEntry shown = activityEntry(entry);
    EXPECT_EQ(shown.tone, Tone::orange);
    EXPECT_EQ(shown.details, u"sent unverified \u00B7 Check (212)\u00A0555-0101."_s);
    AppConfig config;
    config.delayMin = 45.9;
    config.delayMax = 0x1p63;
    EXPECT_EQ(paceLine(config), u"45 to 9223372036854776000 seconds apart"_s);
}

// Catches inserts at the wrong place, a number menu that is rebuilt for every letter, and a send
// section that hides how the run stands.
TEST_F(RunModels, TheComposerAndTheSendSectionFollow) {
    ComposeModel compose(withFriends());
    const QSignalSpy announced(&compose, &ComposeModel::senderChanged);
    compose.setMessage(QString());
    for (const int place : {0, 1, 2, 3})
        compose.insert(place);
    EXPECT_EQ(stored().templates[u"friends"_s], u"{first_name}{custom_note}\n---\n"_s);
    EXPECT_EQ(announced.size(), 0);
    model->setSenderNumber(myOtherLine);
    EXPECT_EQ(announced.size(), 1);

    home.writeMessages(messagesOnLine(myOtherLine));
    const RunModel run(*model);
    model->selectShown();
    model->startRun();
    world.clock.advance(0.1);
    EXPECT_EQ(run.status(), u"0 of 3 \u00B7 Sending to Ann Lee\u2026"_s);
    world.clock.advance(25);
    EXPECT_TRUE(run.status().startsWith(u"1 of 3 \u00B7 Next in "_s)) << run.status().toStdString();
    EXPECT_EQ(run.progress() / run.progressTotal(), 1.0 / 3);
}
