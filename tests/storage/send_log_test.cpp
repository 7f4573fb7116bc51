#include "storage/storage_world.h"

namespace velmora {
namespace {

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
    log.replace(entries[0], entry(u"+2"_s));
    EXPECT_TRUE(file().startsWith(header + rowOf("+2") + "sent,\n" + row));
    static_cast<void>(log.load(party));
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
        other.phone = name.right(2);
        log.append(other);
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
        EXPECT_TRUE(log.isUnderstood(party)) << torn.constData();
    }
    for (const QByteArray nothing : {"", "\xc3", "time,ba"}) {
        put(nothing);
        log.append(entry(u"+3"_s));
        EXPECT_EQ(file(), header + rowOf("+3") + "sent,\n") << "taken for the header";
    }
}

// A disk that is full or a folder out of reach for a while must not lose a line, nor let a failed
// write take one along that stands there.
TEST_F(StorageTest, WhatCannotBeWrittenCountsAndIsWrittenLater) {
    log.append(entry(u"+1"_s));
    const QByteArray before = file();
    {
        const auto disk = fullDisk(before.size() + 10);
        log.append(entry(u"+2"_s, u"sent_unverified"_s));
        log.replace(entry(u"+1"_s), entry(u"+1"_s, u"failed"_s));
        EXPECT_TRUE(log.alreadySent(party).contains(u"+2"_s)) << "texted again tonight";
        log.replace(entry(u"+2"_s, u"sent_unverified"_s), entry(u"+2"_s));
        EXPECT_EQ(log.load(party).size(), 2);
        log.rewrite(party, log.load(party));
    }
    EXPECT_EQ(file(), before);
    log.retry();
    const QByteArray second = rowOf("+2") + "sent,\n";
    EXPECT_EQ(file(), header + row + "failed,\n" + second);
    // The folder takes new files, so that only the rule keeps the file from being replaced.
    permitLogs(0x4444, 0x7777);
    {
        const auto user = asOrdinaryUser();
        log.append(entry(u"+3"_s));
    }
    permitLogs(0x0000, 0x7777);
    {
        const auto user = asOrdinaryUser();
        EXPECT_EQ(log.load(party).size(), 1);
        EXPECT_FALSE(log.isUnderstood(party));
        log.rewrite(party, {});
    }
    permitLogs(0x6666, 0x7777);
    EXPECT_EQ(log.load(party).size(), 3);
    EXPECT_TRUE(QDir(folder.logs()).removeRecursively());
    log.append(entry(u"+4"_s));
    EXPECT_EQ(log.load(party).size(), 1) << "the folder was not made again";
    {
        SendLog ending(folder, clock);
        const auto disk = fullDisk(0);
        ending.append(entry(u"+5"_s));
    }
    EXPECT_EQ(log.load(party).size(), 2) << "not tried at the end";
}

// Another program's lines, and what it did to the file, are the user's: nothing of it may go.
TEST_F(StorageTest, WhatOthersWroteIsKeptAndTold) {
    log.append(entry(u"+1"_s));
    auto entries = log.load(party);
    put(file() + rowOf("+2") + "failed,\n");
    log.rewrite(party, entries);
    log.replace(entry(u"+1"_s), entry(u"+1"_s, u"failed"_s));
    EXPECT_EQ(file(), header + row + "failed,\n" + rowOf("+2") + "failed,\n");

    const QByteArray plain = row + "sent,\n";
    const std::vector<std::pair<QByteArray, bool>> logs = {
        {header + plain, true},
        {header + plain + row + "sent,cut o", true},
        {header + plain + "\n" + plain, true},
        {"", true},
        {"time,ba", true},
        {QByteArray(header + plain).replace(",", ";"), false},
        {plain + plain, false},
        {header + plain + "2025-03-14,short\n", false},
        {header + rowOf("4.4770091E+11") + "sent,\n", false},
        {header + plain + "\xe9\n", false},
        {QByteArray("\xff\xfet\0i\0", 6), false},
    };
    for (const auto& [bytes, understood] : logs) {
        put(bytes);
        entries = log.load(party);
        EXPECT_EQ(log.isUnderstood(party), understood) << bytes.constData();
        if (!understood) {
            log.rewrite(party, entries);
            log.append(entry(u"+3"_s, u"sent_unverified"_s));
            log.replace(entry(u"+3"_s, u"sent_unverified"_s), entry(u"+3"_s));
            const QByteArray added = rowOf("+3") + "sent,\n";
            EXPECT_EQ(file(), bytes + (bytes.endsWith('\n') ? "" : "\n") + added);
        }
    }
    // A spreadsheet takes the sign away, or writes the number in its own way.
    for (const QByteArray phone : {"14155550100", "(415) 555-0100", "4155550100"}) {
        put(header + rowOf(phone) + "sent,\n");
        EXPECT_TRUE(log.alreadySent(party).contains(u"+14155550100"_s)) << phone.constData();
    }
    put(header + rowOf("447700900123") + "sent,\n");
    EXPECT_TRUE(log.alreadySent(party).contains(u"+447700900123"_s));
    EXPECT_TRUE(log.isUnderstood(party));
}

// A pipe in place of a file would hang the program, a device fill its memory; a file of an older
// version may be open to others.
TEST_F(StorageTest, OnlyOrdinaryFilesAreReadAndWritten) {
    const QByteArray name = QFile::encodeName(logFile());
    ASSERT_EQ(::mkfifo(name.constData(), 0600), 0);
    log.append(entry(u"+1"_s));
    EXPECT_EQ(log.load(party).size(), 1);
    EXPECT_FALSE(log.isUnderstood(party));
    EXPECT_FALSE(replaceFile(logFile(), "x") || createFile(logFile(), "x"));
    ASSERT_TRUE(QFile::remove(logFile()) && QFile::link(u"/dev/zero"_s, logFile()));
    EXPECT_EQ(log.load(party).size(), 1);
    ASSERT_TRUE(QFile::remove(logFile()));
    const QString real = directory.filePath(u"real.csv"_s);
    writeTestFile(real, header);
    permit(real, 0x6644);
    ASSERT_TRUE(QFile::link(real, logFile()));
    log.retry();
    EXPECT_EQ(read(real), header + row + "sent,\n") << "a link to a file is the file";
    EXPECT_EQ(mode(real), 0600U);
    permit(real, 0x6644);
    static_cast<void>(log.load(party));
    EXPECT_EQ(mode(real), 0600U);
    EXPECT_EQ(createFile(real, "x").error().kind, FileError::Kind::exists);
}

// A real half character has at most 3 bytes; what goes on longer is no torn end of ours.
TEST_F(StorageTest, OnlyAHalfCharacterIsCutOff) {
    put(header + row + "sent,\n" + '\xc3' + QByteArray(5000, '\x80'));
    log.append(entry(u"+3"_s));
    EXPECT_TRUE(file().contains(QByteArray(5000, '\x80')));
}

}  // namespace
}  // namespace velmora
