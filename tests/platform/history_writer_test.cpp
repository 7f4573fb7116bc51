#include "platform/rehearsal/history_writer.h"

#include <gtest/gtest.h>
#include <sqlite3.h>

#include <QDir>
#include <QFileInfo>

#include "history/messages_db.h"
#include "support/rehearsal_home.h"

using namespace Qt::Literals::StringLiterals;

namespace velmora {
namespace {

const QString ann = QStringLiteral("+12125550123");
const QString bob = QStringLiteral("+12125550124");

qint64 count(const QString& path, const QString& table) {
    auto history = MessagesDB::open(path).value();
    const auto rows = history.query(u"SELECT COUNT(*) FROM "_s + table, {}).value();
    return std::get<qint64>(rows.at(0).at(0));
}

// Catches a second handle or conversation for the same person, and one that services share.
TEST(HistoryWriter, KeepsOneHandleAndConversationForEachPersonAndService) {
    RehearsalHome home;
    for (const QString& service : {u"iMessage"_s, u"SMS"_s, u"iMessage"_s})
        home.record({.handle = ann, .service = service});
    EXPECT_EQ(count(home.historyPath(), u"handle"_s), 2);
    EXPECT_EQ(count(home.historyPath(), u"chat"_s), 2);
    EXPECT_EQ(count(home.historyPath(), u"message"_s), 3);
}

// Catches a group's messages that show up as a conversation with one of its members.
TEST(HistoryWriter, AGroupIsNoConversationWithItsMembers) {
    RehearsalHome home;
    const auto group = home.history().addChat(ChatStyle::group, {ann, bob}, u"iMessage"_s).value();
    ASSERT_TRUE(home.history().add({.handle = bob, .date = 5, .fromMe = false}, group).has_value());
    home.record({.handle = ann, .line = u"+12125550100"_s, .date = 7}, ChatStyle::group);
    auto history = MessagesDB::open(home.historyPath()).value();
    EXPECT_FALSE(history.thread(ann, {}).value().has_value());
    EXPECT_FALSE(history.thread(bob, {}).value().has_value());
    EXPECT_TRUE(history.lastSent(ann, 0).value().has_value());
    EXPECT_EQ(count(home.historyPath(), u"chat"_s), 1) << "the group that Ann is in is found";
}

// Catches a transaction that shows before it is committed, or stays after it is dropped.
TEST(HistoryWriter, ATransactionShowsAllOrNothing) {
    RehearsalHome home;
    {
        auto transaction = home.history().begin();
        ASSERT_TRUE(transaction.has_value());
        home.record({.handle = ann});
        EXPECT_EQ(count(home.historyPath(), u"message"_s), 0);
    }
    EXPECT_EQ(count(home.historyPath(), u"message"_s), 0);
    auto transaction = home.history().begin();
    const qint64 row = home.record({.handle = ann});
    ASSERT_TRUE(home.history().setFlags(row, true, false).has_value());
    ASSERT_TRUE(transaction->commit().has_value());
    auto history = MessagesDB::open(home.historyPath()).value();
    EXPECT_TRUE(history.lastSent(ann, 0).value()->sent);
    EXPECT_EQ(history.lastSent(ann, 0).value()->line, QString());
}

// Catches a schema that is forced upon a history that holds more than we know of.
TEST(HistoryWriter, WorksOnAHistoryWithFurtherTablesAndColumns) {
    RehearsalHome home;
    ASSERT_TRUE(QDir().mkpath(QFileInfo(home.historyPath()).path()));
    sqlite3* db = nullptr;
    ASSERT_EQ(sqlite3_open(home.historyPath().toUtf8().constData(), &db), SQLITE_OK);
    const int made = sqlite3_exec(
        db,
        "CREATE TABLE attachment (ROWID INTEGER PRIMARY KEY, name TEXT);"
        "CREATE TABLE message (ROWID INTEGER PRIMARY KEY, guid TEXT UNIQUE NOT NULL, subject TEXT,"
        " text TEXT, service TEXT, handle_id INTEGER, country TEXT, date INTEGER, date_read "
        "INTEGER,"
        " is_from_me INTEGER, error INTEGER, is_delivered INTEGER, is_sent INTEGER,"
        " is_emote INTEGER DEFAULT 0, destination_caller_id TEXT);"
        "CREATE TABLE chat (ROWID INTEGER PRIMARY KEY, guid TEXT UNIQUE NOT NULL, room TEXT,"
        " style INTEGER);"
        "CREATE TABLE handle (ROWID INTEGER PRIMARY KEY, id TEXT, country TEXT, service TEXT);"
        "CREATE TABLE chat_handle_join (chat_id INTEGER, handle_id INTEGER);"
        "CREATE TABLE chat_message_join (chat_id INTEGER, message_id INTEGER, message_date "
        "INTEGER);"
        "INSERT INTO handle VALUES (7, '+12125550123', 'us', 'iMessage');",
        nullptr, nullptr, nullptr);
    sqlite3_close(db);
    ASSERT_EQ(made, SQLITE_OK);
    home.record({.handle = ann, .line = u"+12125550100"_s, .date = 3});
    EXPECT_EQ(count(home.historyPath(), u"handle"_s), 1);
    auto history = MessagesDB::open(home.historyPath()).value();
    EXPECT_EQ(history.thread(ann, {}).value()->line, u"+12125550100"_s);
}

// Catches a private folder that others may look into, and a failure without a sentence.
TEST(HistoryWriter, MakesAPrivateFolderAndRefusesWhatIsNoDatabase) {
    RehearsalHome home;
    (void)home.history();
    const QString folder = QFileInfo(home.historyPath()).path();
    EXPECT_FALSE(QFileInfo(folder).permission(QFile::ReadGroup | QFile::ReadOther));
    const QString path = folder + u"/other.db"_s;
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(QByteArray("no database at all\n").repeated(100));
    file.close();
    const auto opened = HistoryWriter::open(path);
    ASSERT_FALSE(opened.has_value());
    EXPECT_TRUE(opened.error().description.startsWith(u"Couldn't open the Messages history: "_s));
    EXPECT_TRUE(opened.error().description.endsWith(u'.'));
}

}  // namespace
}  // namespace velmora
