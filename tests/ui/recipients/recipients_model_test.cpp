#include "ui/recipients/recipients_model.h"

#include <QAbstractItemModelTester>
#include <QSignalSpy>
#include <random>

#include "app/app_home.h"
#include "core/phone.h"
#include "ui/recipients/row_changes.h"

namespace velmora {

namespace {

QByteArray with(QByteArray person, const QByteArray& key, const QByteArray& value) {
    return person.replace("{", "{\"" + key + "\": \"" + value + "\",");
}

/// The rows of a list, watched for whatever the toolkit's rules for models forbid.
class Recipients : public AppHome {
  protected:
    void openRows() {
        withFriends().setSenderNumber(myLine);
        list = std::make_unique<RecipientsModel>(*model);
        tester = std::make_unique<QAbstractItemModelTester>(
            list.get(), QAbstractItemModelTester::FailureReportingMode::Fatal);
        resets.emplace(list.get(), &QAbstractItemModel::modelReset);
        changes.emplace(list.get(), &QAbstractItemModel::dataChanged);
    }

    [[nodiscard]] RecipientEntry entry(int row) const {
        return list->index(row).data(RecipientsModel::entryRole).value<RecipientEntry>();
    }
    /// What one field says in all rows, one after the other.
    [[nodiscard]] QString column(auto RecipientEntry::* field) const {
        QStringList all;
        for (int row = 0; row < list->rowCount(); ++row)
            all.append(QVariant(entry(row).*field).toString());
        return all.join(u'|');
    }
    [[nodiscard]] QString names() const { return column(&RecipientEntry::name); }

    /// The rows that changed since the last call, as "first-last".
    QStringList changed() {
        QStringList all;
        for (const QList<QVariant>& change : std::as_const(*changes))
            all.append(
                u"%1-%2"_s.arg(change[0].toModelIndex().row()).arg(change[1].toModelIndex().row()));
        changes->clear();
        return all;
    }

    std::unique_ptr<RecipientsModel> list;
    std::unique_ptr<QAbstractItemModelTester> tester;
    std::optional<QSignalSpy> resets;
    std::optional<QSignalSpy> changes;
};

// Catches a row that says the wrong thing of a person, and a section in the wrong place.
TEST_F(Recipients, eachPersonSaysWhatTheyAre) {
    thread(u"+12125550102"_s, myOtherLine);
    thread(u"+12125550103"_s, u"me@example.com"_s);
    friends({person(u"ann"_s, u"Ann"_s, u"Lee"_s, u"212 555 0101"_s),
             with(person(u"bob"_s, u"Bob"_s, u""_s, u"212 555 0102"_s), "organizationName", "Acme"),
             person(u"joe"_s, u"Joe"_s, u""_s, u"212 555 0103"_s),
             person(u"new"_s, u"New"_s, u""_s, u"212 555 0104"_s),
             with(person(u"shop"_s, u""_s, u""_s), "organizationName", "Shop"),
             person(u"who"_s, u""_s, u""_s)});
    openRows();
    EXPECT_EQ(names(), u"Ann Lee|Bob|Joe|New|Shop|(no name)"_s);
    EXPECT_EQ(column(&RecipientEntry::company), u"|Acme||||"_s);
    EXPECT_EQ(column(&RecipientEntry::heading), u"||||Can't text · 2|"_s);
    for (const auto field : {&RecipientEntry::checkable, &RecipientEntry::faint})
        EXPECT_EQ(column(field), u"true|true|true|true|false|false"_s);
    EXPECT_EQ(column(&RecipientEntry::phoneLabel), u"|||||"_s) << "mobile goes without saying";
    const Remark other{.text = u"iMessage "_s + displayPhone(myOtherLine),
                       .symbol = u"exclamationmark.circle.fill"_s,
                       .spoken = u"iMessage "_s + displayPhone(myOtherLine) + u", wrong line"_s,
                       .textTone = Tone::secondary,
                       .symbolTone = Tone::red};
    EXPECT_EQ(entry(1).thread, other);
    EXPECT_EQ(entry(2).thread.symbolTone, Tone::green) << "one's own address is no other line";
    EXPECT_EQ(entry(3).thread.text, u"No thread yet"_s);
    EXPECT_EQ(entry(4).thread.text + entry(4).thread.symbol, QString());
    EXPECT_EQ(entry(1).issue.symbolTone, Tone::orange);
    EXPECT_EQ(entry(3).issue.symbol, u"info.circle"_s);
    EXPECT_EQ(entry(5).spoken, u"(no name), can't be texted, No usable phone number."_s);

    changed();
    model->editConfig([](AppConfig& config) { config.senderNumber.clear(); });
    EXPECT_EQ(entry(1).thread.symbolTone, Tone::green) << "without a number of one's own";
    EXPECT_EQ(changed(), QStringList{u"0-5"_s});
    list->search(u"shop"_s);
    EXPECT_EQ(column(&RecipientEntry::heading), u"Can't text · 1"_s);
}

// Catches a tick, a note or a message that touches more of the list than it changes.
TEST_F(Recipients, aChangeTouchesOnlyItsRows) {
    openRows();
    list->setChecked(1, true);
    EXPECT_EQ(model->selection(), QSet<QString>{u"bob"_s});
    list->toggle(1);
    list->selectShown();
    EXPECT_EQ(model->selection().size(), 3);
    EXPECT_EQ(changed(), (QStringList{u"1-1"_s, u"1-1"_s, u"0-2"_s}));

    list->editNote(2);
    EXPECT_TRUE(entry(2).showsNote && !entry(2).offersNote && entry(1).offersNote);
    list->setNote(2, u" see you "_s);
    EXPECT_TRUE(entry(2).preview.endsWith(u" see you"_s));
    EXPECT_EQ(changed(), (QStringList{u"2-2"_s, u"2-2"_s}));

    model->setCurrentTemplate(u"The same for all"_s);
    EXPECT_EQ(changed(), QStringList{u"0-2"_s});
    EXPECT_EQ(column(&RecipientEntry::preview), u"||"_s);
    EXPECT_EQ(resets->size(), 0);
}

// Catches a reload that throws the list away, and a person left in the wrong section.
TEST_F(Recipients, aReloadKeepsTheRowsOfThoseWhoStay) {
    openRows();
    const QPersistentModelIndex joanne(list->index(2));
    friends({person(u"ann"_s, u"Ann"_s, u"Lee"_s, u"212 555 0101"_s),
             person(u"bob"_s, u"Bob"_s, u"Stone"_s),
             person(u"carl"_s, u"Carl"_s, u""_s, u"212 555 0109"_s),
             person(u"joanne"_s, u"Joanne"_s, u""_s, u"212 555 0103"_s)});
    model->loadList();
    EXPECT_EQ(names(), u"Ann Lee|Carl|Joanne|Bob Stone"_s);
    EXPECT_EQ(column(&RecipientEntry::heading), u"|||Can't text · 1"_s);
    EXPECT_EQ(joanne.row(), 2);
    EXPECT_EQ(resets->size(), 0);
}

// Catches rows that a run leaves open, and someone texted twice or filtered out but still shown.
TEST_F(Recipients, aRunLocksTheRowsAndMarksWhoWasSent) {
    openRows();
    list->setChecked(0, true);
    changed();
    model->startRun();
    EXPECT_EQ(changed(), QStringList{u"0-2"_s});
    list->search(u"bob"_s);
    list->showSelectedOnly(true);
    EXPECT_EQ(list->rowCount(), 3);
    ASSERT_TRUE(world.clock.runUntilIdle());
    model->loadList();
    EXPECT_EQ(entry(0).sentText, u"Sent"_s);
    EXPECT_EQ(column(&RecipientEntry::checkable), u"false|true|true"_s);
    list->selectShown();
    EXPECT_EQ(model->selection(), (QSet<QString>{u"bob"_s, u"joanne"_s}));
    list->showSelectedOnly(true);
    list->setChecked(0, false);
    EXPECT_EQ(names(), u"Joanne"_s);
    model->selectGroup(QString());
    EXPECT_EQ(list->emptyState().title, u"Nobody in this list"_s);
    EXPECT_EQ(resets->size(), 0);
}

using Rows = std::vector<qsizetype>;

Rows numbered(int count, int every = 1) {
    Rows rows;
    for (int row = 0; row < count; row += every)
        rows.push_back(row);
    return rows;
}

/// `before` after the steps; `stayed` gets what no step touched.
Rows walked(Rows before, const Rows& after, qsizetype kept, Rows* stayed = nullptr) {
    for (const RowChange& step : rowChanges(before, after, kept)) {
        if (step.kind == RowChange::Kind::insert) {
            before.insert(before.begin() + step.first, after.begin() + step.first,
                          after.begin() + step.first + step.count);
            continue;
        }
        before.erase(before.begin() + step.first, before.begin() + step.first + step.count);
        if (stayed != nullptr)
            *stayed = before;
    }
    return before;
}

// Catches steps that lead to another list than the one wanted, thousands of them for one letter
// typed, and a view whose rows all go.
TEST(RowChanges, leadFromAnyListToAnyOtherInFewSteps) {
    std::mt19937 random(20250314);
    const auto draw = [&random] {
        Rows rows = numbered(300);
        std::ranges::shuffle(rows, random);
        rows.resize(random() % 300);
        if (random() % 2 == 0)
            std::ranges::sort(rows);
        return rows;
    };
    for (int round = 0; round < 200; ++round) {
        const Rows before = draw();
        const Rows after = draw();
        ASSERT_EQ(walked(before, after, static_cast<int>(random() % 300) - 1), after);
    }

    const Rows everyone = numbered(10000);
    const Rows some = numbered(10000, 3);
    Rows stayed;
    EXPECT_EQ(walked(everyone, some, 6000, &stayed), some);
    EXPECT_LT(rowChanges(everyone, some, 6000).size(), 250U);
    for (int row = 6000; row < 6030; row += 3)
        EXPECT_NE(std::ranges::find(stayed, row), stayed.end()) << row;
    EXPECT_TRUE(rowChanges(some, some, 0).empty());
}

}  // namespace

}  // namespace velmora
