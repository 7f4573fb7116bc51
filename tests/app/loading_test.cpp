#include "app_home.h"

using namespace velmora;

using Startup = AppHome;

// Catches a start that leaves a new user without a list, a run name or their only number, or that
// forgets one of them at the next; settings lost without a word, written needlessly or, where an
// observer stores too, in part; and names read where they must not be.
TEST_F(Startup, ChoosesWhatIsObviousAndKeepsIt) {
    open().setConfig(model->config());
    EXPECT_FALSE(QFile::exists(settingsPath()));
    started();
    EXPECT_EQ(stored().selectedGroupID, allContactsID);
    EXPECT_EQ(stored().senderNumber, myLine);
    EXPECT_EQ(model->batchName.value(), u"All Contacts 2025-03-14"_s);
    EXPECT_EQ(model->recipients().size(), 3);
    QObject::connect(model.get(), &AppModel::configChanged, model.get(), [this] {
        if (model->config().maxFailures != 7)
            model->editConfig([](AppConfig& config) { config.maxFailures = 7; });
    });
    model->editConfig([](AppConfig& config) { config.selectedGroupID = u"deleted"_s; });
    EXPECT_EQ(stored(), model->config());
    started();
    EXPECT_EQ(stored().selectedGroupID, allContactsID);
    EXPECT_EQ(stored().maxFailures, 7);

    writeTestFile(settingsPath(), "{ torn");
    started();
    EXPECT_TRUE(model->alert.value().value_or(QString()).contains(u"/config (kept).json\", "));
    model->alert = std::nullopt;
    model->acceptTerms();
    EXPECT_EQ(model->alert.value(), std::nullopt) << "said twice";

    home.writeContacts(R"({"access": "denied", "contacts": [{"identifier": "ann"}]})");
    started();
    EXPECT_FALSE(model->contactsAllowed || model->alert.value());
    EXPECT_TRUE(model->recipients().empty() && model->batchName.value().isEmpty());
}

// Catches a number picked for the user among several, a chosen one replaced and an alias twice;
// help that does not leave when access is back, and a look in vain that counts as the last one.
TEST_F(Startup, NumbersAreMergedAndChosenOnlyWhenThereIsNoChoice) {
    thread(u"+12125550101"_s, myLine);
    thread(u"+12125550102"_s, myOtherLine);
    home.writeMessages(R"({"aliases": {"allAliases": ["+12125558888", "+1999", "me@a.com"]}})");
    started().acceptTerms();
    const std::vector<NumberInfo> numbers{{myLine, 2}, {myOtherLine, 1}, {u"+1999"_s, 0}};
    EXPECT_EQ(model->numbers.value(), numbers);
    EXPECT_TRUE(model->config().senderNumber.isEmpty() && model->needsSenderSetup());
    model->setSenderNumber(u"+10000000000"_s);
    model->refreshNumbers();
    EXPECT_EQ(stored().senderNumber, u"+10000000000"_s);
    EXPECT_FALSE(model->needsSenderSetup());

    const std::optional<Moment> checkedAt = model->numbersCheckedAt;
    const QString away = home.historyPath() + u".away"_s;
    ASSERT_TRUE(QFile::rename(home.historyPath(), away));
    world.clock.advance(60);
    model->refreshNumbers();
    EXPECT_TRUE(!model->dbOK && model->numbers.value().empty());
    EXPECT_TRUE(model->dbError.value().startsWith(u"Couldn't open Messages history: "));
    EXPECT_EQ(model->numbersCheckedAt.value(), checkedAt);
    model->showingFDAHelp = true;
    ASSERT_TRUE(QFile::rename(away, home.historyPath()));
    model->refreshNumbers();
    EXPECT_TRUE(model->dbError.value().isEmpty() && !model->needsFDAHelp());
    EXPECT_GT(model->numbersCheckedAt.value(), checkedAt);
}

// Catches pickers that show another time than is stored, most of all when the clocks change.
TEST_F(Startup, TimesOfDayExistOnTheDayTheyAreShown) {
    open().setTimeOfDay(QDateTime(QDate(2025, 1, 1), QTime(7, 5, 59)), QuietField::end);
    EXPECT_EQ(stored().quietEnd, u"07:05"_s);
    const auto shown = [this](const QString& text) {
        model->editConfig([&](AppConfig& config) { config.quietStart = text; });
        return model->timeOfDay(QuietField::start).time();
    };
    EXPECT_EQ(shown(u"7:5"_s), QTime(7, 5));
    EXPECT_EQ(shown(u"25:99"_s), QTime(11, 0)) << "not now";
    world.clock.shiftWall(-5 * 86400.0);  // 9 March 2025: there is no 2:30
    EXPECT_EQ(shown(u"2:30"_s), QTime(3, 0));
}

using List = AppHome;

// Catches someone texted who should not be, or blocked who need not be: the order of the checks,
// whose number it is, a conversation on an e-mail address, a name to show for everyone, and a
// warning that a change of number or of access to the history leaves behind.
TEST_F(List, EveryoneIsCheckedInTheOrderOfTheAddressBook) {
    friends({person(u"none"_s, u""_s, u""_s, u"55512"_s),
             person(u"nameless"_s, u""_s, u"\u00c9mile"_s, u"212 555 0104"_s),
             person(u"zoe"_s, u"zoe"_s, u"Young"_s, u"212 555 0104"_s, {u"Zoe@example.com"_s}),
             person(u"abe"_s, u"Abe"_s, u"Old"_s, u"+1 212 555 0104"_s),
             with("nickname", "Nan", person(u"nan"_s, u""_s, u""_s, u"212 555 0105"_s)), ann});
    thread(u"zoe@example.com"_s, myLine);
    withFriends().setCurrentTemplate(u"{first_name}"_s);
    QStringList seen;
    for (const Recipient& each : model->recipients())
        seen.append(each.name + u": "_s + each.issue.value_or(u"fine"_s));
    const QString newThread =
        u"New thread. Your iPhone uses their preferred line, or your default line."_s;
    EXPECT_EQ(seen, (QStringList{u"(no name): No usable phone number."_s,
                                 u"Abe Old: Same number as another contact in this list."_s,
                                 u"Ann Lee: fine"_s, u"\u00c9mile: No first name on the contact."_s,
                                 u"Nan: "_s + newThread, u"zoe Young: fine"_s}));
    EXPECT_EQ(model->textFor(recipient(u"nan"_s)), u"Nan");
    EXPECT_EQ(model->textFor(recipient(u"abe"_s)), QString());
    EXPECT_EQ(model->attentionCount(), 3);
    EXPECT_TRUE(recipient(u"zoe"_s).usable && !recipient(u"abe"_s).usable);

    model->setSenderNumber(myOtherLine);
    EXPECT_EQ(recipient(u"ann"_s).issue,
              u"Your thread with them is on (212) 555-9999. Text them once by hand from "
              "(212) 555-8888 first."_s);
    model->setSenderNumber(QString());
    EXPECT_EQ(recipient(u"ann"_s).issue, std::nullopt);
    changeHistory(home.historyPath(), "DROP TABLE handle");
    model->loadList();
    EXPECT_EQ(recipient(u"ann"_s).issue, newThread) << "a look-up that fails";
    ASSERT_TRUE(QFile::rename(home.historyPath(), home.historyPath() + u".away"_s));
    model->loadList();
    EXPECT_EQ(recipient(u"ann"_s).issue, std::nullopt);
}

// Catches choices that are lost, or that loading or changing the list rewrites, a search or a note
// being edited that stays with another list, and a failed read that empties the window or is kept
// silent.
TEST_F(List, ChecksAreRememberedForEachListAndOnlyTheUserChangesThem) {
    withFriends().setSelection({u"ann"_s, u"bob"_s});
    model->searchText = u"ann"_s;
    model->selectedOnly = true;
    model->editingNoteID = u"ann"_s;
    model->selectGroup(allContactsID);
    EXPECT_FALSE(model->selectedOnly || model->editingNoteID.value());
    EXPECT_EQ(model->searchText.value(), QString());
    EXPECT_TRUE(model->selection().isEmpty());
    EXPECT_FALSE(stored().picks.contains(allContactsID));
    friends({ann, person(u"bob"_s, u"Bob"_s, u"Stone"_s)});
    model->selectGroup(u"friends"_s);
    EXPECT_EQ(model->selection(), QSet<QString>{u"ann"_s});
    EXPECT_EQ(stored().picks[u"friends"_s], (QStringList{u"ann"_s, u"bob"_s}));
    model->setSelected(u"ann"_s, false);
    EXPECT_EQ(stored().picks[u"friends"_s], QStringList());

    home.writeContacts("{");
    model->loadList();
    EXPECT_TRUE(model->alert.value().value().startsWith(u"Couldn't read that list: "));
    EXPECT_EQ(model->recipients().size(), 2);
    EXPECT_FALSE(model->loading);
    model->loadGroups();
    EXPECT_TRUE(model->alert.value().value().startsWith(u"Couldn't read your Contacts groups: "));
    EXPECT_EQ(model->groups.value().size(), 1);

    model->selectGroup(QString());
    EXPECT_EQ(model->recipients().size(), 0);
    EXPECT_EQ(model->batchName.value(), u"run 2025-03-14"_s);
    model->setCurrentTemplate(u"lost"_s);
    EXPECT_EQ(model->currentTemplate(), QString());
    EXPECT_TRUE(stored().templates.isEmpty());
}

// Catches a search that misses what reads the same, finds by two digits, or checks what is hidden.
TEST_F(List, SearchFindsByNameCompanyAndPhoneAndNarrowsTheBulkChecks) {
    friends({ann, person(u"joanne"_s, u"Joanne"_s, u""_s, u"212 777 0103"_s),
             with("organizationName", " CAF\u00c9 \\n", person(u"rene"_s, u"Rene\u0301"_s, {}))});
    withFriends();
    const auto shown = [this] {
        QString ids;
        for (const qsizetype index : model->visibleRecipients())
            ids += model->recipients()[static_cast<size_t>(index)].id + u' ';
        return ids.trimmed();
    };
    for (const auto& [text, found] : {std::pair(u" \t"_s, u"ann joanne rene"_s),
                                      {u" ann\t"_s, u"ann joanne"_s},
                                      {u"REN\u00c9"_s, u"rene"_s},
                                      {u"cafe\u0301"_s, u"rene"_s},
                                      {u"(555)"_s, u"ann"_s},
                                      {u"55"_s, u""_s},
                                      {u"ann\n"_s, u""_s}}) {
        model->searchText = text;
        EXPECT_EQ(shown(), found) << text.toStdString();
    }
    EXPECT_EQ(recipient(u"rene"_s).company, u"CAF\u00c9"_s);
    model->selectShown();
    EXPECT_TRUE(model->selection().isEmpty());
    model->searchText = QString();
    model->selectShown();
    EXPECT_EQ(model->selection(), (QSet<QString>{u"ann"_s, u"joanne"_s}));
    model->searchText = u"jo"_s;
    model->clearShown();
    model->searchText = QString();
    model->selectedOnly = true;
    EXPECT_EQ(shown(), u"ann"_s);
}
