#include "ui/activity_model.h"

#include <QAbstractItemModelTester>
#include <QSignalSpy>

#include "app/app_home.h"
#include "ui/run_display.h"

namespace velmora {

namespace {

using Activity = AppHome;

// Catches a log upside down, and a list that starts over with every line or every later finding.
TEST_F(Activity, theNewestLineComesFirstAndTheOthersStay) {
    home.writeMessages(messagesOnLine(
        myLine, {{u"+12125550101"_s, R"({"iMessage": {"sentAfter": 30, "deliveredAfter": 30}})"},
                 {u"+12125550102"_s, R"({"iMessage": {"error": 22}, "SMS": {"error": 22}})"}}));
    withFriends().selectShown();
    ActivityModel activity(model->runner());
    const QAbstractItemModelTester tester(&activity,
                                          QAbstractItemModelTester::FailureReportingMode::Fatal);
    const QSignalSpy resets(&activity, &QAbstractItemModel::modelReset);
    const QSignalSpy inserts(&activity, &QAbstractItemModel::rowsInserted);
    const auto column = [&activity](ActivityModel::Role role) {
        QStringList texts;
        for (int row = 0; row < activity.rowCount(); ++row)
            texts.append(activity.data(activity.index(row), role).toString());
        return texts;
    };
    model->startRun();
    ASSERT_TRUE(world.clock.runUntilIdle());
    EXPECT_EQ(column(ActivityModel::nameRole),
              (QStringList{u"Joanne"_s, u"Bob Stone"_s, u"Ann Lee"_s}));
    EXPECT_EQ(column(ActivityModel::symbolColorRole),
              (QStringList{u"green"_s, u"red"_s, u"green"_s}));
    EXPECT_EQ(inserts.size(), 3);
    model->loadList();
    EXPECT_EQ(resets.size(), 0) << "the same log read again";
}

// Catches a status shown as another one, and details with gaps or underscores.
TEST(LogEntryDisplay, statusDetailsAndTimeAreThoseOfTheEntry) {
    LogEntry entry;
    entry.time = Moment{763657200.0};
    entry.status = u"sent_unverified"_s;
    EXPECT_EQ(statusColor(entry.status), u"orange"_s);
    entry.service = u"SMS"_s;
    entry.detail = u"Check the thread."_s;
    EXPECT_EQ(entryDetails(entry), u"sent unverified \u00B7 SMS \u00B7 Check the thread."_s);
    entry.status.clear();
    EXPECT_EQ(entryDetails(entry), u"SMS \u00B7 Check the thread."_s);
    const QLocale before;
    QLocale::setDefault(QLocale(u"en_US"_s));
    EXPECT_EQ(clockTime(entry).simplified(), u"11:00 AM"_s);
    QLocale::setDefault(before);
}

}  // namespace

}  // namespace velmora
