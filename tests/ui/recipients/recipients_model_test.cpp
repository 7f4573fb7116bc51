#include "ui/recipients/recipients_model.h"

#include <QAbstractItemModelTester>
#include <QSignalSpy>
#include <numeric>
#include <random>

#include "app/app_home.h"
#include "core/phone.h"
#include "ui/recipients/row_changes.h"

using namespace velmora;

/// The rows of a list, watched for whatever the toolkit's rules for models forbid.
class Recipients : public AppHome {
  protected:
    ~Recipients() override { EXPECT_EQ(resets->size(), 0) << "the whole list was replaced"; }

    void openRows() {
        withFriends().setSenderNumber(myLine);
        list.emplace(*model);
        tester.emplace(&*list, QAbstractItemModelTester::FailureReportingMode::Fatal);
        resets.emplace(&*list, &QAbstractItemModel::modelReset);
        changes.emplace(&*list, &QAbstractItemModel::dataChanged);
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
    QString changed() {
        QStringList all;
        for (const QList<QVariant>& change : std::as_const(*changes))
            all.append(
                u"%1-%2"_s.arg(change[0].toModelIndex().row()).arg(change[1].toModelIndex().row()));
        changes->clear();
        return all.join(u' ');
    }

    std::optional<RecipientsModel> list;
    std::optional<QAbstractItemModelTester> tester;
    std::optional<QSignalSpy> resets;
    std::optional<QSignalSpy> changes;
};

// Catches a row that says the wrong thing of a person, and a section in the wrong place.
TEST_F(Recipients, EachPersonSaysWhatTheyAre) {
    thread(u"+12125550102"_s, myOtherLine);
    thread(u"+12125550103"_s, u"me@example.com"_s);
    friends({ann, with("organizationName", "Acme", bob), joanne,
             person(u"new"_s, u"New"_s, u""_s, u"212 555 0104"_s),
             with("organizationName", "Shop", person(u"shop"_s, u""_s, u""_s)),
             person(u"who"_s, u""_s, u""_s)});
    openRows();
    EXPECT_EQ(names(), u"Ann Lee|Bob Stone|Joanne|New|Shop|(no name)"_s);
    EXPECT_EQ(column(&RecipientEntry::company), u"|Acme||||"_s);
    EXPECT_EQ(column(&RecipientEntry::heading), u"||||Can't text · 2|"_s);
    for (const auto field : {&RecipientEntry::checkable, &RecipientEntry::faint})
        EXPECT_EQ(column(field), u"true|true|true|true|false|false"_s);
    EXPECT_EQ(entry(1).thread.spoken,
              u"iMessage "_s + displayPhone(myOtherLine) + u", wrong line"_s);
    EXPECT_EQ(entry(1).thread.symbolTone, Tone::red);
    EXPECT_EQ(entry(2).thread.symbolTone, Tone::green) << "one's own address is no other line";
    EXPECT_EQ(entry(4).thread.text + entry(4).thread.symbol, QString());
    EXPECT_EQ(entry(1).issue.symbolTone, Tone::orange);
    EXPECT_TRUE(entry(1).issue.text.contains(u"(212)\u00A0555-"_s)) << "a number that breaks";
    EXPECT_EQ(entry(5).spoken, u"(no name), can't be texted, No usable phone number."_s);

    changed();
    model->editConfig([](AppConfig& config) { config.senderNumber.clear(); });
    EXPECT_EQ(entry(1).thread.symbolTone, Tone::green) << "without a number of one's own";
    EXPECT_EQ(changed(), u"0-5"_s);
    list->search(u"shop"_s);
    EXPECT_EQ(column(&RecipientEntry::heading), u"Can't text · 1"_s);
}

// Catches a tick, a note, a message or a reload that touches more of the list than it changes, a
// note that is not kept as typed, and a person left in the wrong section.
TEST_F(Recipients, AChangeTouchesOnlyItsRows) {
    openRows();
    list->setChecked(1, true);
    EXPECT_EQ(model->selection(), QSet<QString>{u"bob"_s});
    list->toggle(1);
    list->selectShown();
    EXPECT_EQ(model->selection().size(), 3);
    EXPECT_EQ(changed(), u"1-1 1-1 0-2"_s);

    list->editNote(2);
    EXPECT_TRUE(entry(2).showsNote && !entry(2).offersNote && entry(1).offersNote);
    list->setNote(2, u" see you \n"_s);
    EXPECT_TRUE(entry(2).preview.endsWith(u" see you"_s));
    EXPECT_EQ(stored().notes[u"joanne"_s], u" see you \n"_s);
    list->setNote(2, QString());
    EXPECT_TRUE(stored().notes.isEmpty());
    EXPECT_EQ(changed(), u"2-2 2-2 2-2"_s);
    model->setCurrentTemplate(u"The same for all"_s);
    EXPECT_EQ(changed(), u"0-2"_s);
    EXPECT_EQ(column(&RecipientEntry::preview), u"||"_s);

    const QPersistentModelIndex last(list->index(2));
    friends({ann, person(u"bob"_s, u"Bob"_s, u"Stone"_s),
             person(u"carl"_s, u"Carl"_s, u""_s, u"212 555 0109"_s), joanne});
    model->loadList();
    EXPECT_EQ(names(), u"Ann Lee|Carl|Joanne|Bob Stone"_s);
    EXPECT_EQ(column(&RecipientEntry::heading), u"|||Can't text · 1"_s);
    EXPECT_EQ(last.row(), 2) << "Joanne's row is another";
}

// Catches rows that a run leaves open, and someone texted twice or filtered out but still shown.
TEST_F(Recipients, ARunLocksTheRowsAndMarksWhoWasSent) {
    openRows();
    list->setChecked(0, true);
    changed();
    model->startRun();
    EXPECT_EQ(changed(), u"0-2"_s);
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
}

// Catches steps that lead to another list than the one wanted, and thousands of them for one letter
// typed.
TEST(RowChanges, LeadFromAnyListToAnyOtherInFewSteps) {
    using Rows = std::vector<qsizetype>;
    std::mt19937 random(20250314);
    const auto draw = [&random] {
        Rows rows(300);
        std::iota(rows.begin(), rows.end(), 0);
        std::ranges::shuffle(rows, random);
        rows.resize(random() % 300);
        if (random() % 2 == 0)
            std::ranges::sort(rows);
        return rows;
    };
    for (int round = 0; round < 200; ++round) {
        Rows rows = draw();
        const Rows after = draw();
        for (const auto& [kind, first, count] :
             rowChanges(rows, after, static_cast<int>(random() % 300) - 1))
            if (kind == RowChange::Kind::remove)
                rows.erase(rows.begin() + first, rows.begin() + first + count);
            else
                rows.insert(rows.begin() + first, after.begin() + first,
                            after.begin() + first + count);
        ASSERT_EQ(rows, after);
    }
    Rows everyone(10000);
    std::iota(everyone.begin(), everyone.end(), 0);
    Rows some = everyone;
    std::erase_if(some, [](qsizetype row) { return row % 3 != 0; });
    EXPECT_LT(rowChanges(everyone, some, 6000).size(), 250U);
}
