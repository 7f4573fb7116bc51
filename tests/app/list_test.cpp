#include "app_home.h"

namespace velmora {
namespace {

using List = AppHome;

const QString newThread =
    u"New thread. Your iPhone uses their preferred line, or your default line."_s;

QByteArray with(const QByteArray& key, const QByteArray& value, QByteArray person) {
    return person.replace("{", "{\"" + key + "\": \"" + value + "\",");
}

// Catches someone texted who should not be, or blocked who need not be: the order of the checks,
// whose number it is, a conversation on an e-mail address, and a name to show for everyone.
TEST_F(List, EveryoneIsCheckedInTheOrderOfTheAddressBook) {
    friends({person(u"none"_s, u""_s, u""_s, u"55512"_s),
             person(u"nameless"_s, u""_s, u"\u00c9mile"_s, u"212 555 0104"_s),
             person(u"zoe"_s, u"zoe"_s, u"Young"_s, u"212 555 0104"_s, {u"Zoe@example.com"_s}),
             person(u"abe"_s, u"Abe"_s, u"Old"_s, u"+1 212 555 0104"_s),
             with("nickname", "Nan", person(u"nan"_s, u""_s, u""_s, u"212 555 0105"_s)),
             person(u"ann"_s, u"Ann"_s, u"Lee"_s, u"212 555 0101"_s)});
    thread(u"zoe@example.com"_s, myLine);
    withFriends().setCurrentTemplate(u"{first_name}"_s);
    QStringList seen;
    for (const Recipient& each : model->recipients())
        seen.append(each.name + u": "_s + each.issue.value_or(u"fine"_s));
    EXPECT_EQ(seen, (QStringList{u"(no name): No usable phone number."_s,
                                 u"Abe Old: Same number as another contact in this list."_s,
                                 u"Ann Lee: fine"_s, u"\u00c9mile: No first name on the contact."_s,
                                 u"Nan: "_s + newThread, u"zoe Young: fine"_s}));
    EXPECT_EQ(recipient(u"nan"_s).text, u"Nan");
    EXPECT_EQ(model->attentionCount(), 3);
    EXPECT_TRUE(recipient(u"zoe"_s).usable);
    EXPECT_FALSE(recipient(u"abe"_s).usable);
    EXPECT_EQ(recipient(u"abe"_s).text, QString());
}

// Catches warnings that a change of number or of access to the history leaves behind.
TEST_F(List, LinesAreJudgedAgainstTheNumberSentFrom) {
    thread(u"+12125550102"_s, u"me@example.com"_s);
    withFriends();
    EXPECT_EQ(recipient(u"ann"_s).issue, std::nullopt);
    model->setSenderNumber(myOtherLine);
    EXPECT_EQ(recipient(u"ann"_s).issue,
              u"Your thread with them is on (212) 555-9999. Text them once by hand from "
              "(212) 555-8888 first."_s);
    EXPECT_EQ(recipient(u"bob"_s).issue, std::nullopt);
    EXPECT_EQ(recipient(u"joanne"_s).issue, newThread);
    EXPECT_EQ(model->attentionCount(), 1);
    model->setSenderNumber(QString());
    EXPECT_EQ(model->attentionCount(), 0);
    changeHistory(home.historyPath(), "DROP TABLE handle");
    model->loadList();
    EXPECT_EQ(recipient(u"ann"_s).issue, newThread) << "a look-up that fails";
    ASSERT_TRUE(QFile::rename(home.historyPath(), home.historyPath() + u".away"_s));
    model->loadList();
    EXPECT_EQ(recipient(u"joanne"_s).issue, std::nullopt);
}

// Catches choices that are lost, or that loading or changing the list rewrites, and a search or a
// note being edited that stays with another list.
TEST_F(List, ChecksAreRememberedForEachListAndOnlyTheUserChangesThem) {
    withFriends();
    EXPECT_TRUE(model->selection().isEmpty());
    model->setSelection({u"ann"_s, u"bob"_s});
    model->searchText = u"ann"_s;
    model->selectedOnly = true;
    model->editingNoteID = u"ann"_s;
    model->selectGroup(allContactsID);
    EXPECT_FALSE(model->selectedOnly || model->editingNoteID.value());
    EXPECT_EQ(model->searchText.value(), QString());
    EXPECT_TRUE(model->selection().isEmpty());
    EXPECT_FALSE(stored().picks.contains(allContactsID));
    friends({person(u"ann"_s, u"Ann"_s, u"Lee"_s, u"(212) 555-0101"_s),
             person(u"bob"_s, u"Bob"_s, u"Stone"_s)});
    model->selectGroup(u"friends"_s);
    EXPECT_EQ(model->selection(), QSet<QString>{u"ann"_s});
    EXPECT_EQ(stored().picks[u"friends"_s], (QStringList{u"ann"_s, u"bob"_s}));
    model->setSelected(u"ann"_s, false);
    EXPECT_EQ(stored().picks[u"friends"_s], QStringList());

    model->selectGroup(QString());
    EXPECT_EQ(model->recipients().size(), 0);
    EXPECT_EQ(model->batchName.value(), u"run 2025-03-14"_s);
    model->setCurrentTemplate(u"lost"_s);
    EXPECT_EQ(model->currentTemplate(), QString());
    EXPECT_TRUE(stored().templates.isEmpty());
}

// Catches a failed read that empties the window.
TEST_F(List, AnUnreadableListLeavesWhatIsShown) {
    withFriends();
    home.writeContacts("{");
    model->loadList();
    EXPECT_TRUE(model->alert.value().value().startsWith(u"Couldn't read that list: "));
    EXPECT_EQ(model->recipients().size(), 3);
    EXPECT_EQ(model->groups.value().size(), 1);
    EXPECT_FALSE(model->loading);
}

// Catches a search that misses what reads the same, finds by two digits, or selects what is hidden.
TEST_F(List, SearchFindsByNameCompanyAndPhoneAndNarrowsTheBulkChecks) {
    friends(
        {person(u"ann"_s, u"Ann"_s, u""_s, u"212 555 0101"_s),
         person(u"joanne"_s, u"Joanne"_s, u""_s, u"212 777 0103"_s),
         with("organizationName", " CAF\u00c9 \\n", person(u"rene"_s, u"Rene\u0301"_s, u""_s))});
    withFriends();
    const std::vector<std::pair<QString, QStringList>> searches = {
        {u" \t"_s, {u"ann"_s, u"joanne"_s, u"rene"_s}},
        {u" ann\t"_s, {u"ann"_s, u"joanne"_s}},
        {u"REN\u00c9"_s, {u"rene"_s}},
        {u"cafe\u0301"_s, {u"rene"_s}},
        {u"(555)"_s, {u"ann"_s}},
        {u"55"_s, {}},
        {u"ann\n"_s, {}}};
    for (const auto& [text, found] : searches) {
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
    EXPECT_EQ(model->selection(), QSet<QString>{u"ann"_s});
    model->searchText = QString();
    model->selectedOnly = true;
    EXPECT_EQ(shown(), QStringList{u"ann"_s});
}

// Catches a list that is replaced, and with it a focus lost, by a tick, a note or a typed letter.
TEST_F(List, TicksNotesAndTypingChangeOnlyWhatTheyTouch) {
    withFriends();
    int replaced = 0;
    int texts = 0;
    std::vector<qsizetype> changed;
    const auto count = [](int& times) { return [&times] { ++times; }; };
    QObject::connect(model.get(), &AppModel::recipientsReplaced, count(replaced));
    QObject::connect(model.get(), &AppModel::recipientTextsChanged, count(texts));
    QObject::connect(model.get(), &AppModel::recipientTextChanged,
                     [&](qsizetype index) { changed.push_back(index); });
    model->setSelected(u"bob"_s, true);
    model->setCurrentTemplate(u"Hi {first_name}{custom_note}"_s);
    EXPECT_EQ(texts, 1);
    model->setNote(u"bob"_s, u" see you \n"_s);
    EXPECT_EQ(recipient(u"bob"_s).text, u"Hi Bob see you"_s);
    EXPECT_EQ(stored().notes[u"bob"_s], u" see you \n"_s);
    EXPECT_EQ(changed, std::vector<qsizetype>{1});
    model->setNote(u"bob"_s, QString());
    EXPECT_TRUE(stored().notes.isEmpty());
    EXPECT_EQ(recipient(u"bob"_s).text, u"Hi Bob"_s);
    EXPECT_EQ(recipient(u"ann"_s).text, u"Hi Ann"_s);
    EXPECT_EQ(replaced, 0);
    model->loadList();
    EXPECT_EQ(replaced, 1);
    EXPECT_EQ(texts, 1);
}

}  // namespace
}  // namespace velmora
