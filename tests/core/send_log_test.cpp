#include "core/send_log.h"

#include <random>

#include "core/log_time.h"
#include "core/storage_home.h"
#include "support/virtual_clock.h"

using namespace Qt::StringLiterals;
using namespace velmora;

namespace {

const QByteArray header = "time,batch,name,phone,service,line,status,detail\n";

LogEntry entry(const QString& phone, const QString& status = u"sent"_s,
               const QString& detail = {}) {
    return {.id = {},
            .time = {763657200.75},
            .batch = u"Party"_s,
            .name = u"Ann, B"_s,
            .phone = phone,
            .service = u"iMessage"_s,
            .line = u"+19995550000"_s,
            .status = status,
            .detail = detail};
}

class SendLogTest : public ::testing::Test {
  protected:
    void put(const QByteArray& bytes) { writeTestFile(log.logFile(u"Party"_s), bytes); }
    [[nodiscard]] QByteArray file() { return StorageHome::read(log.logFile(u"Party"_s)); }
    [[nodiscard]] QStringList phones() {
        QStringList result;
        for (const LogEntry& each : log.load(u"Party"_s))
            result += each.phone;
        return result;
    }

    StorageHome home;
    VirtualClock clock{Moment{800000000}};
    SendLog log{home.folder, clock};
};

const QByteArray row = "2025-03-14T11:00:00-04:00,Party,\"Ann, B\",+1,iMessage,+19995550000,";

}  // namespace

// The file is the user's record: every line must be there once, readable by a spreadsheet.
TEST_F(SendLogTest, AppendAndRewriteGiveTheDocumentedFile) {
    EXPECT_TRUE(log.load(u"Party"_s).empty());
    EXPECT_TRUE(log.alreadySent(u"Party"_s).isEmpty());
    log.append(entry(u"+1"_s));
    log.append(entry(u"+1"_s, u"failed"_s, u"He said \"no\"\nand left"_s));
    EXPECT_EQ(file(), header + row + "sent,\n" + row + "failed,\"He said \"\"no\"\"\nand left\"\n");
    EXPECT_EQ(home.mode(log.logFile(u"Party"_s)), 0600U);
    EXPECT_EQ(home.mode(home.folder.logs()), 0700U);
    const auto entries = log.load(u"Party"_s);
    ASSERT_EQ(entries.size(), 2U);
    EXPECT_EQ(entries[1].detail, u"He said \"no\"\nand left"_s);
    EXPECT_EQ(entries[1].time, Moment{763657200});
    EXPECT_NE(entries[0].id, entries[1].id);
    EXPECT_NE(entries[0].id, log.load(u"Party"_s)[0].id);
    log.rewrite(u"Party"_s, {});
    EXPECT_EQ(file(), header);
    EXPECT_TRUE(log.load(u"Party"_s).empty());
}

// Whoever got the message must not get it again; whoever did not must be able to.
TEST_F(SendLogTest, AlreadySentCountsEveryStatusThatBeginsWithSent) {
    for (const QString& status : {u"sent"_s, u"sent_unverified"_s, u"failed"_s, u"Sent"_s})
        log.append(entry(status, status));
    EXPECT_EQ(log.alreadySent(u"Party"_s), (QSet{u"sent"_s, u"sent_unverified"_s}));
    LogEntry other = entry(u"+2"_s);
    other.batch = u"a b"_s;
    log.append(other);
    EXPECT_EQ(log.alreadySent(u"a/b"_s), QSet{u"+2"_s});
}

TEST_F(SendLogTest, OddRowsAndDamagedFilesAreReadAsFarAsTheyGo) {
    put("anything\n1,2,3,4,5,6,7\nyesterday,b,n,+1,s,l,sent,d,ninth\r\n"
        "2025-03-05T14:03:22+01:00,b,n,+2,s,l,sent,d");
    const auto entries = log.load(u"Party"_s);
    ASSERT_EQ(entries.size(), 2U);
    EXPECT_EQ(entries[0].time, clock.now());
    EXPECT_EQ(entries[0].detail, u"d"_s);
    EXPECT_EQ(entries[1].time, Moment{762872602});
    EXPECT_EQ(entries[1].batch, u"b"_s);
    put(header + row + "sent,\xff\n");
    EXPECT_TRUE(log.load(u"Party"_s).empty());
    put(header + row + "sent,\n" + QByteArray("t,b,n,+2\0,s,l,sent,\0\n", 21) + row +
        "sent,\"open\n" + row);
    EXPECT_EQ(phones(), (QStringList{u"+1"_s, QString(u"+2\0"_s), u"+1"_s}));
}

// After a loss of power the next person's line would become a part of the torn one, or the whole
// file unreadable, and people be texted again: in a folder that takes no new file, too.
TEST_F(SendLogTest, ATornLastLineSwallowsNoOther) {
    const QString path = log.logFile(u"Party"_s);
    for (const QByteArray& torn :
         {row, row + "sent,\"half a det", row + "sent,\"half a det\n", row + "sent,\"a \"",
          row.left(9), row + "sent,Chlo\xc3", row + "sent,\"\xf0\x9f\x8e"}) {
        put(header + row + "sent,\n" + torn);
        ASSERT_TRUE(QFile::setPermissions(path, QFile::Permissions(0x6666)));
        ASSERT_TRUE(QFile::setPermissions(home.folder.logs(), QFile::Permissions(0x5555)));
        ASSERT_TRUE(QFile::setPermissions(home.folder.path(), QFile::Permissions(0x7755)));
        const OrdinaryUser user;
        EXPECT_EQ(log.alreadySent(u"Party"_s), QSet{u"+1"_s}) << torn.constData();
        log.append(entry(u"+3"_s));
        EXPECT_EQ(log.alreadySent(u"Party"_s), (QSet{u"+1"_s, u"+3"_s})) << torn.constData();
    }
    for (const QByteArray nothing : {"", "\xc3"}) {
        put(nothing);
        log.append(entry(u"+3"_s));
        EXPECT_EQ(file().left(header.size()), header) << "taken for the header";
    }
}

TEST_F(SendLogTest, FailedWritesLeaveTheFileWhole) {
    log.append(entry(u"+1"_s));
    const QByteArray before = file();
    {
        const FullDisk disk(before.size() + 10);
        log.append(entry(u"+2"_s));
        log.rewrite(u"Party"_s, {entry(u"+3"_s), entry(u"+4"_s)});
    }
    {
        const FullDisk disk(0);
        log.rewrite(u"Party"_s, {});
    }
    EXPECT_EQ(file(), before);
    // The folder takes new files, so that only the rule keeps the file from being replaced.
    const QString path = log.logFile(u"Party"_s);
    ASSERT_TRUE(QFile::setPermissions(path, QFile::Permissions(0x4444)));
    ASSERT_TRUE(QFile::setPermissions(home.folder.logs(), QFile::Permissions(0x7777)));
    ASSERT_TRUE(QFile::setPermissions(home.folder.path(), QFile::Permissions(0x7755)));
    {
        const OrdinaryUser user;
        log.append(entry(u"+2"_s));
    }
    EXPECT_EQ(file(), before);
}

TEST(SafeFileStem, KeepsLettersMarksAndNumbersOfEveryScript) {
    EXPECT_EQ(safeFileStem(u"Spring Party 2025!"_s), u"Spring-Party-2025"_s);
    EXPECT_EQ(safeFileStem(u"../a/b\\c"_s), u"a-b-c"_s);
    EXPECT_EQ(safeFileStem(u"_-a  b-_-"_s), u"_-a--b-_"_s);
    EXPECT_EQ(safeFileStem(u"\u00e9e\u0301\u0928\u093f\u0663\u00bd\U00020000"_s),
              u"\u00e9e\u0301\u0928\u093f\u0663\u00bd\U00020000"_s);
    EXPECT_EQ(safeFileStem(u"a\U0001f600b"_s + QChar(0xd800) + u"c"_s), u"a-b-c"_s);
    for (const QString& name : {u""_s, u"!?."_s, u"---"_s})
        EXPECT_EQ(safeFileStem(name), u"batch"_s);
}

TEST(ParseCSV, FollowsEachRule) {
    const std::vector<std::pair<QString, QString>> cases = {
        {u"a,b\r\nc,d\n"_s, u"a|b/c|d"_s},
        {u"a\r\rb\rc,\r\n"_s, u"abc|"_s},
        {u"\"a\r\nb\rc\",d"_s, u"a\r\nb\rc|d"_s},
        {u"a\"b,\"\"c\"d"_s, u"ab,\"cd"_s},
        {u"\"a\"\r\n\"b\"\rc\"\"\"\""_s, u"a/bc\""_s},
        {u"\"a\",\"b\"x\"y\"\n"_s, u"a|bxy"_s},
        {u"a,\"open\n,"_s, u"a|open\n,"_s},
        {u"a\n\nb"_s, u"a//b"_s},
        {u"a,"_s, u"a|"_s},
    };
    for (const auto& [text, expected] : cases) {
        QStringList rows;
        for (const QStringList& fields : parseCSV(text))
            rows += fields.join(u'|');
        EXPECT_EQ(rows.join(u'/'), expected);
    }
    for (const QString& text : {u""_s, u"\""_s, u"\"\""_s, u"\r"_s})
        EXPECT_TRUE(parseCSV(text).empty());
}

TEST(ParseCSV, ReadsBackWhateverIsWritten) {
    std::mt19937 engine(20250314);
    const QString alphabet = u"a,\"\n\u00e9\u2028 \u0000"_s;
    std::vector<QStringList> rows;
    QString text;
    for (int count = 0; count < 5000; ++count) {
        QStringList fields{u"first"_s};
        for (int field = 0; field < 7; ++field) {
            fields += QString();
            while (engine() % 5 != 0)
                fields.back() += alphabet[engine() % alphabet.size()];
        }
        text += formatCSV(fields);
        rows.push_back(fields);
    }
    EXPECT_EQ(parseCSV(text), rows);
}

// A time an hour off after a change of the clocks, or a row that is not understood.
TEST(LogTime, CarriesTheOffsetOfItsDay) {
    EXPECT_EQ(formatLogTime({763657200.99}), u"2025-03-14T11:00:00-04:00"_s);
    EXPECT_EQ(formatLogTime({-0.5}, 0), u"2000-12-31T23:59:59Z"_s);
    EXPECT_EQ(formatLogTime({-0.5}, 60), u"2001-01-01T00:59:59+01:00"_s);
    EXPECT_EQ(formatLogTime({-0.5}, 345), u"2001-01-01T05:44:59+05:45"_s);
    EXPECT_EQ(formatLogTime({-0.5}, -210), u"2000-12-31T20:29:59-03:30"_s);
    EXPECT_EQ(formatLogTime({std::numeric_limits<double>::infinity()}).left(4), u"9999"_s);
    const double autumn = 783928800;  // 2025-11-04 06:00 UTC
    for (double hour = -72; hour < 0; ++hour) {
        const Moment moment{autumn + hour * 3600};
        EXPECT_EQ(parseLogTime(formatLogTime(moment)), moment);
    }
    EXPECT_EQ(parseLogTime(u"2025-03-14T15:00:00Z"), Moment{763657200});
    EXPECT_EQ(parseLogTime(u"2025-03-14T20:45:00+05:45"), Moment{763657200});
    EXPECT_EQ(parseLogTime(u"2024-02-29T00:00:00Z"), Moment{730857600});
    for (const char16_t* text :
         {u"", u"2025-03-14T15:00:00", u"2025-03-14T15:00:00.5Z", u"2025-03-14 15:00:00Z",
          u"2025-02-29T00:00:00Z", u"2025-13-01T00:00:00Z", u"2025-03-14T24:00:00Z",
          u"2025-03-14T15:60:00Z", u"2025-03-14T15:00:00+0100", u"2025-03-14T15:00:00Z ",
          u" 2025-03-14T15:00:00Z", u"2025-3-14T15:00:00Z", u"2025-03-14T15:00:00+01:00x",
          u"\u0662025-03-14T15:00:00Z", u"2025-03-14T15:00:00z"})
        EXPECT_EQ(parseLogTime(QStringView(text)), std::nullopt)
            << QStringView(text).toString().toStdString();
}
