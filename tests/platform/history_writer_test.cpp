#include "platform/rehearsal/history_writer.h"

#include <gtest/gtest.h>

#include <QFileInfo>

#include "history/messages_db.h"
#include "support/rehearsal_home.h"

using namespace Qt::StringLiterals;

namespace velmora {
namespace {

const QString ann = u"+12125550123"_s;
const QString bob = u"+12125550124"_s;

qint64 count(const RehearsalHome& home, const QString& table) {
    auto history = MessagesDB::open(home.historyPath()).value();
    return std::get<qint64>(history.query(u"SELECT COUNT(*) FROM "_s + table, {}).value()[0][0]);
}

// Catches a second conversation for the same person, one that services share, and a group's
// messages that show up as a conversation with one of its members.
TEST(HistoryWriter, KeepsOneConversationForEachPersonAndService) {
    RehearsalHome home;
    const auto group = home.history().addChat(ChatStyle::group, {ann, bob}, u"iMessage"_s).value();
    ASSERT_TRUE(home.history().add({.handle = bob, .date = 5, .fromMe = false}, group).has_value());
    home.record({.handle = ann, .date = 7}, ChatStyle::group);
    auto history = MessagesDB::open(home.historyPath()).value();
    EXPECT_FALSE(history.thread(ann, {}).value() || history.thread(bob, {}).value());
    EXPECT_EQ(count(home, u"chat"_s), 1) << "the group that Ann is in is found";
    for (const QString& service : {u"iMessage"_s, u"SMS"_s, u"iMessage"_s})
        home.record({.handle = ann, .service = service});
    EXPECT_EQ(count(home, u"handle"_s), 3);
    EXPECT_EQ(count(home, u"chat"_s), 3);
}

// Catches a transaction that shows before it is committed, or stays after it is dropped.
TEST(HistoryWriter, ATransactionShowsAllOrNothing) {
    RehearsalHome home;
    for (const bool committed : {false, true}) {
        auto transaction = home.history().begin();
        ASSERT_TRUE(transaction.has_value());
        home.record({.handle = ann});
        EXPECT_EQ(count(home, u"message"_s), 0);
        EXPECT_TRUE(!committed || transaction->commit().has_value());
    }
    EXPECT_EQ(count(home, u"message"_s), 1);
}

// Catches a private folder that others may look into, and a failure without a sentence.
TEST(HistoryWriter, MakesAPrivateFolderAndRefusesWhatIsNoDatabase) {
    RehearsalHome home;
    static_cast<void>(home.history());
    const QString folder = QFileInfo(home.historyPath()).path();
    EXPECT_FALSE(QFileInfo(folder).permission(QFile::ReadGroup | QFile::ReadOther));
    writeTestFile(folder + u"/other.db"_s, QByteArray("no database at all\n").repeated(100));
    const QString refusal = HistoryWriter::open(folder + u"/other.db"_s).error().description;
    EXPECT_TRUE(refusal.startsWith(u"Couldn't open the Messages history: ")) << qPrintable(refusal);
}

}  // namespace
}  // namespace velmora
