#include "app_home.h"

namespace velmora {
namespace {

using Startup = AppHome;

QTime timeOf(const QString& text, AppModel& model) {
    model.editConfig([&](AppConfig& config) { config.quietStart = text; });
    return model.timeOfDay(QuietField::start).time();
}

// Catches a start that leaves a new user without a list, a run name or their only number, or that
// forgets one of them at the next start.
TEST_F(Startup, FirstStartChoosesWhatIsObviousAndKeepsIt) {
    EXPECT_FALSE(open().bootstrapped);
    EXPECT_FALSE(QFile::exists(settingsPath()));
    started();
    EXPECT_EQ(stored().selectedGroupID, allContactsID);
    EXPECT_EQ(stored().senderNumber, myLine);
    EXPECT_EQ(model->batchName.value(), u"All Contacts 2025-03-14"_s);
    EXPECT_EQ(model->currentGroup(), (GroupInfo{allContactsID, u"All Contacts"_s, 3}));
    EXPECT_EQ(model->recipients().size(), 3);

    model->editConfig([](AppConfig& config) { config.selectedGroupID = u"deleted"_s; });
    started();
    EXPECT_EQ(stored().selectedGroupID, allContactsID);
}

// Catches a start that waits for ever or reads names when it may not, and a failure kept silent.
TEST_F(Startup, WithoutAccessNothingIsLoadedAndAFailingReadIsTold) {
    home.writeContacts(R"({"access": "denied", "contacts": [{"identifier": "ann"}]})");
    started();
    EXPECT_FALSE(model->contactsAllowed);
    EXPECT_TRUE(model->groups.value().empty() && model->recipients().empty());
    EXPECT_EQ(model->allContactsCount.value(), 0);
    EXPECT_EQ(model->batchName.value(), QString());
    EXPECT_EQ(stored().selectedGroupID, std::nullopt);
    EXPECT_EQ(model->alert.value(), std::nullopt);
    home.writeContacts("{");
    model->loadGroups();
    EXPECT_TRUE(model->alert.value().value().startsWith(u"Couldn't read your Contacts groups: "));
}

// Catches a number picked for the user among several, a chosen one replaced, and an alias twice.
TEST_F(Startup, NumbersAreMergedAndChosenOnlyWhenThereIsNoChoice) {
    thread(u"+12125550101"_s, myLine);
    thread(u"+12125550102"_s, myOtherLine);
    home.writeMessages(R"({"aliases": {"allAliases": ["+12125558888", "+1999", "me@a.com"]}})");
    started();
    EXPECT_EQ(model->numbers.value(),
              (std::vector<NumberInfo>{{myLine, 2}, {myOtherLine, 1}, {u"+1999"_s, 0}}));
    EXPECT_EQ(model->config().senderNumber, QString());
    EXPECT_FALSE(model->needsSenderSetup());
    model->acceptTerms();
    EXPECT_TRUE(model->needsSenderSetup());
    model->setSenderNumber(u"+10000000000"_s);
    model->refreshNumbers();
    EXPECT_EQ(stored().senderNumber, u"+10000000000"_s);
    EXPECT_FALSE(model->needsSenderSetup());
}

// Catches help that covers the terms or stays after access came back, and a time of the last look
// that a failed look moves.
TEST_F(Startup, LosingTheHistoryShowsHelpUntilItIsBack) {
    started();
    const std::optional<Moment> checkedAt = model->numbersCheckedAt;
    const QString away = home.historyPath() + u".away"_s;
    ASSERT_TRUE(QFile::rename(home.historyPath(), away));
    world.clock.advance(60);
    model->refreshNumbers();
    EXPECT_FALSE(model->dbOK);
    EXPECT_TRUE(model->dbError.value().startsWith(u"Couldn't open Messages history: "));
    EXPECT_TRUE(model->numbers.value().empty());
    EXPECT_EQ(model->numbersCheckedAt.value(), checkedAt);
    EXPECT_FALSE(model->needsFDAHelp());
    model->acceptTerms();
    EXPECT_TRUE(model->needsFDAHelp());
    model->skippedFDAHelp = true;
    EXPECT_FALSE(model->needsFDAHelp());
    model->showingFDAHelp = true;
    EXPECT_TRUE(model->needsFDAHelp());

    ASSERT_TRUE(QFile::rename(away, home.historyPath()));
    model->refreshNumbers();
    EXPECT_TRUE(model->dbOK);
    EXPECT_FALSE(model->needsFDAHelp());
    EXPECT_EQ(model->dbError.value(), QString());
    EXPECT_GT(model->numbersCheckedAt.value(), checkedAt);
}

// Catches needless writes, and a file that holds less than the model when an observer stores too.
TEST_F(Startup, SettingsAreSavedWhenTheyDifferAndTheNewestWins) {
    open();
    model->setConfig(model->config());
    EXPECT_FALSE(QFile::exists(settingsPath()));
    QObject::connect(model.get(), &AppModel::configChanged, model.get(), [this] {
        if (model->config().maxFailures != 7)
            model->editConfig([](AppConfig& config) { config.maxFailures = 7; });
    });
    model->editConfig([](AppConfig& config) { config.delayMin = 5; });
    EXPECT_EQ(stored(), model->config());
    EXPECT_EQ(stored().maxFailures, 7);
    EXPECT_EQ(stored().delayMin, 5);
}

// Catches pickers that show another time than is stored, most of all on the days when clocks
// change.
TEST_F(Startup, TimesOfDayExistOnTheDayTheyAreShown) {
    open();
    EXPECT_EQ(timeOf(u"7:5"_s, *model), QTime(7, 5));
    EXPECT_EQ(timeOf(u"late"_s, *model), QTime(10, 0));
    for (const auto& impossible : {u"25:99"_s, u"-1:30"_s, u"99999999999:0"_s})
        EXPECT_EQ(timeOf(impossible, *model), localTime(world.clock.now()).time());
    model->setTimeOfDay(QDateTime(QDate(2025, 1, 1), QTime(7, 5, 59)), QuietField::end);
    EXPECT_EQ(stored().quietEnd, u"07:05"_s);

    world.clock.shiftWall(-5 * 86400.0);  // 9 March 2025: there is no 2:30
    model->setTimeOfDay(2, 30, QuietField::start);
    EXPECT_EQ(stored().quietStart, u"02:30"_s);
    EXPECT_EQ(timeOf(u"2:30"_s, *model), QTime(3, 0));
    EXPECT_EQ(timeOf(u"3:10"_s, *model), QTime(3, 10));
    world.clock.shiftWall(238 * 86400.0);  // 2 November 2025: 1:30 comes twice
    EXPECT_EQ(timeOf(u"1:30"_s, *model), QTime(1, 30));
    EXPECT_EQ(model->timeOfDay(QuietField::start).toUTC().time(), QTime(5, 30));
}

}  // namespace
}  // namespace velmora
