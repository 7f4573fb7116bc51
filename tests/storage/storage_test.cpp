#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QScopeGuard>
#include <csignal>
#include <limits>

#include "core/fresh_id.h"
#include "storage/config_store.h"
#include "storage/files.h"
#include "storage/send_log.h"
#include "support/rehearsal_home.h"
#include "support/virtual_clock.h"

using namespace Qt::StringLiterals;

using namespace velmora;

namespace {

/// Until the answer goes, no file grows beyond `bytes`: writing more fails as on a full disk.
[[nodiscard]] auto fullDisk(rlim_t bytes) {
    std::signal(SIGXFSZ, SIG_IGN);
    rlimit before{};
    ::getrlimit(RLIMIT_FSIZE, &before);
    const rlimit limit{bytes, before.rlim_max};
    ::setrlimit(RLIMIT_FSIZE, &limit);
    return qScopeGuard([before] { ::setrlimit(RLIMIT_FSIZE, &before); });
}

/// Until the answer goes, permissions count: an administrator's do not, so this is somebody else.
[[nodiscard]] auto asOrdinaryUser() {
    const uid_t user = ::geteuid();
    EXPECT_EQ(::seteuid(user == 0 ? 65534 : user), 0);
    return qScopeGuard([user] { EXPECT_EQ(::seteuid(user), 0); });
}

void permit(const QString& path, int permissions) {
    EXPECT_TRUE(QFile::setPermissions(path, QFile::Permissions(permissions)));
}

mode_t mode(const QString& path) {
    struct stat status{};
    ::stat(QFile::encodeName(path).constData(), &status);
    return status.st_mode & 0777;
}

QByteArray read(const QString& path) {
    return readFile(path).value_or("(unreadable)");
}

AppConfig fullConfig() {
    AppConfig config;
    config.senderNumber = u"+15551234567"_s;
    config.delayMin = 0.1;
    config.delayMax = 1e-7;
    config.quietStart = u"7:5"_s;
    config.quietEnd = u"late"_s;
    config.verifyWait = 4.25;
    config.maxPerRun = std::numeric_limits<qint64>::max();
    config.maxFailures = std::numeric_limits<qint64>::min();
    config.selectedGroupID = u""_s;
    config.templates = {{u"\U0001f600"_s, u"\ufeffquote \" and \u0000 zero"_s},
                        {u"\uff5e"_s, u"\n"_s}};
    config.notes = {{u"a"_s, u" "_s}};
    config.picks = {{u"g"_s, {u"1"_s, u"2"_s}}, {u"h"_s, {}}};
    config.termsAccepted = currentTermsVersion;
    config.termsAcceptedAt = Moment{763657200.1234567};
    return config;
}

const QByteArray header = "time,batch,name,phone,service,line,status,detail\n";
const QByteArray row = "2025-03-14T11:00:00-04:00,Party,\"Ann, B\",+1,iMessage,+19995550000,";
const QString party = u"Party"_s;

LogEntry entry(const QString& phone, const QString& status = u"sent"_s,
               const QString& detail = {}) {
    return {freshID(),     {763657200.75},    party,  u"Ann, B"_s, phone,
            u"iMessage"_s, u"+19995550000"_s, status, detail};
}

/// An Application Support directory of the test's own.
class StorageTest : public ::testing::Test {
  protected:
    StorageTest() { permit(directory.path(), 0x7755); }

    [[nodiscard]] QString logFile() { return log.logFile(party); }
    [[nodiscard]] QByteArray file() { return read(logFile()); }
    void put(const QByteArray& bytes) { writeTestFile(logFile(), bytes); }
    void permitLogs(int fileMode, int folderMode) {
        permit(logFile(), fileMode);
        permit(folder.logs(), folderMode);
        permit(folder.path(), 0x7755);
    }

    QTemporaryDir directory;
    SupportFolder folder{directory.path()};
    ConfigStore store{folder};
    VirtualClock clock{Moment{800000000}};
    SendLog log{folder, clock};
};

}  // namespace

// One bit lost, or a key forgotten in reading or writing, changes settings at every start.
TEST_F(StorageTest, SettingsThatAreSavedAreLoaded) {
    const QString path = folder.path() + u"/config.json"_s;
    EXPECT_EQ(store.load(), AppConfig());
    EXPECT_FALSE(QFile::exists(path));
    store.save(fullConfig());
    EXPECT_EQ(ConfigStore(folder).load(), fullConfig());
    EXPECT_EQ(mode(path), 0600U);
    EXPECT_EQ(mode(folder.path()), 0700U);
    store.save(AppConfig());
    EXPECT_EQ(store.load(), AppConfig());
}

// A failed save that destroys the file loses every template and note.
TEST_F(StorageTest, AFailedSaveLeavesTheOldFile) {
    store.save(fullConfig());
    for (const rlim_t room : {0, 100}) {
        const auto disk = fullDisk(room);
        store.save(AppConfig());
    }
    EXPECT_EQ(store.load(), fullConfig());
    permit(folder.path() + u"/config.json"_s, 0x6644);
    permit(folder.path(), 0x5555);
    {
        const auto user = asOrdinaryUser();
        store.save(AppConfig());
        EXPECT_EQ(store.load(), fullConfig());
    }
    permit(folder.path(), 0x7700);
    EXPECT_EQ(QDir(folder.path()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot),
              QStringList{u"config.json"_s});
}

TEST_F(StorageTest, TheOlderFolderMovesOnlyIntoAFreePlace) {
    const QString older = directory.filePath(u"Kestrune"_s);
    writeTestFile(older + u"/logs/a.csv"_s, "old");
    EXPECT_EQ(folder.path(), directory.filePath(u"Velmora"_s));
    EXPECT_EQ(read(directory.filePath(u"Velmora/logs/a.csv"_s)), "old");
    ASSERT_TRUE(QDir().mkpath(older));
    EXPECT_EQ(SupportFolder(directory.path()).logs(), directory.filePath(u"Velmora/logs"_s));
    EXPECT_TRUE(QFile::exists(older));
    // A file where the folder should be: nothing works, nothing breaks.
    const QString plain = directory.filePath(u"plain"_s);
    writeTestFile(plain, "file");
    SupportFolder blocked(plain);
    ConfigStore(blocked).save(fullConfig());
    EXPECT_EQ(ConfigStore(blocked).load(), AppConfig());
    EXPECT_EQ(read(plain), "file");
}

// The file is the user's record: every line must be there once, readable by a spreadsheet.
TEST_F(StorageTest, AppendAndRewriteGiveTheDocumentedLog) {
    EXPECT_TRUE(log.load(party).empty());
    EXPECT_TRUE(log.alreadySent(party).isEmpty());
    log.append(entry(u"+1"_s));
    log.append(entry(u"+1"_s, u"failed"_s, u"He said \"no\"\nand left"_s));
    EXPECT_EQ(file(), header + row + "sent,\n" + row + "failed,\"He said \"\"no\"\"\nand left\"\n");
    EXPECT_EQ(mode(logFile()), 0600U);
    EXPECT_EQ(mode(folder.logs()), 0700U);
    const auto entries = log.load(party);
    ASSERT_EQ(entries.size(), 2U);
    EXPECT_EQ(entries[1].detail, u"He said \"no\"\nand left"_s);
    EXPECT_EQ(entries[1].time, Moment{763657200});
    EXPECT_NE(entries[0].id, entries[1].id);
    EXPECT_NE(entries[0].id, log.load(party)[0].id);
    log.rewrite(party, {});
    EXPECT_EQ(file(), header);
    EXPECT_TRUE(log.load(party).empty());
}

// Whoever got the message must not get it again; whoever did not must be able to.
TEST_F(StorageTest, AlreadySentCountsEveryStatusThatBeginsWithSent) {
    for (const QString& status : {u"sent"_s, u"sent_unverified"_s, u"failed"_s, u"Sent"_s})
        log.append(entry(status, status));
    EXPECT_EQ(log.alreadySent(party), (QSet{u"sent"_s, u"sent_unverified"_s}));
    LogEntry other = entry(u"+2"_s);
    other.batch = u"a b"_s;
    log.append(other);
    EXPECT_EQ(log.alreadySent(u"a/b"_s), QSet{u"+2"_s});
    // Names too long for a file's, of which nothing would be written; the last just fits.
    const QString chinese = u"\u4e2d"_s.repeated(100);
    const QString fitting = chinese.left(81) + u'a';
    for (const QString& name : {chinese, chinese + u'a', u"\U00020000"_s.repeated(63), fitting}) {
        other.batch = name;
        log.append(other);
        other.phone = name.right(2);
        log.rewrite(name, {other});
        EXPECT_EQ(log.alreadySent(name), QSet{other.phone});
        EXPECT_TRUE(log.logFile(name).isValidUtf16());
    }
    EXPECT_EQ(log.alreadySent(chinese), QSet{chinese.right(2)}) << "each has its own";
    EXPECT_TRUE(log.logFile(fitting).endsWith(u'/' + fitting + u".csv"_s));
}

TEST_F(StorageTest, OddRowsAndDamagedLogsAreReadAsFarAsTheyGo) {
    put("anything\n1,2,3,4,5,6,7\nyesterday,b,n,+1,s,l,sent,d,ninth\r\n"
        "2025-03-05T14:03:22+01:00,b,n,+2,s,l,sent,d");
    const auto entries = log.load(party);
    ASSERT_EQ(entries.size(), 2U);
    EXPECT_EQ(entries[0].time, clock.now());
    EXPECT_EQ(entries[0].detail, u"d"_s);
    EXPECT_EQ(entries[1].time, Moment{762872602});
    EXPECT_EQ(entries[1].batch, u"b"_s);
    put(header + row + "sent,\xff\n");
    EXPECT_TRUE(log.load(party).empty());
    log.rewrite(party, {entry(u"+3"_s)});
    EXPECT_TRUE(file().startsWith(header + row + "sent,\xff\n") && file().contains("+3"));
    put(header + row + "sent,\n" + QByteArray("t,b,n,+2\0,s,l,sent,\0\n", 21) + row +
        "sent,\"open\n" + row);
    QStringList phones;
    for (const LogEntry& each : log.load(party))
        phones += each.phone;
    EXPECT_EQ(phones, (QStringList{u"+1"_s, QString(u"+2\0"_s), u"+1"_s}));
}

// After a loss of power the next person's line would become a part of the torn one, or the whole
// file unreadable, and people be texted again: in a folder that takes no new file, too.
TEST_F(StorageTest, ATornLastLineSwallowsNoOther) {
    for (const QByteArray& torn :
         {row, row + "sent,\"half a det", row + "sent,\"half a det\n", row + "sent,\"a \"",
          row.left(9), row + "sent,Chlo\xc3", row + "sent,\"\xf0\x9f\x8e"}) {
        put(header + row + "sent,\n" + torn);
        permitLogs(0x6666, 0x5555);
        const auto user = asOrdinaryUser();
        EXPECT_EQ(log.alreadySent(party), QSet{u"+1"_s}) << torn.constData();
        log.append(entry(u"+3"_s));
        EXPECT_EQ(log.alreadySent(party), (QSet{u"+1"_s, u"+3"_s})) << torn.constData();
    }
    for (const QByteArray nothing : {"", "\xc3"}) {
        put(nothing);
        log.append(entry(u"+3"_s));
        EXPECT_EQ(file().left(header.size()), header) << "taken for the header";
    }
}

TEST_F(StorageTest, FailedWritesLeaveTheLogWhole) {
    log.append(entry(u"+1"_s));
    const QByteArray before = file();
    {
        const auto disk = fullDisk(before.size() + 10);
        log.append(entry(u"+2"_s));
        log.rewrite(party, {entry(u"+1"_s), entry(u"+2"_s, u"failed"_s)});
        EXPECT_EQ(log.alreadySent(party), QSet{u"+1"_s}) << "not texted, and never will be";
        log.rewrite(party, {entry(u"+1"_s), entry(u"+2"_s)});
        EXPECT_EQ(log.alreadySent(party), (QSet{u"+1"_s, u"+2"_s})) << "texted again tonight";
        EXPECT_EQ(log.load(party).back().phone, u"+2"_s);
    }
    {
        const auto disk = fullDisk(0);
        SendLog(folder, clock).rewrite(party, {});
    }
    EXPECT_EQ(file(), before);
    // The folder takes new files, so that only the rule keeps the file from being replaced.
    permitLogs(0x4444, 0x7777);
    {
        const auto user = asOrdinaryUser();
        log.append(entry(u"+3"_s));
    }
    EXPECT_EQ(file(), before);
    permitLogs(0x6666, 0x7777);
    EXPECT_EQ(log.load(party).size(), 3);
    SendLog other(folder, clock);
    EXPECT_EQ(other.alreadySent(party), (QSet{u"+1"_s, u"+2"_s, u"+3"_s}));
    permitLogs(0x2222, 0x7777);
    {
        const auto user = asOrdinaryUser();
        EXPECT_TRUE(other.load(party).empty());
    }
    permitLogs(0x6666, 0x7777);
    other.rewrite(party, {entry(u"+3"_s), entry(u"+4"_s)});
    EXPECT_EQ(other.load(party).size(), 4) << "replaced by what was not read from it";
}
