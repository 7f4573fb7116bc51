#include "storage/storage_world.h"

using namespace velmora;

// The file is the user's record: every line must be there once, readable by a spreadsheet.
TEST_F(StorageTest, AppendAndRewriteGiveTheDocumentedLog) {
    EXPECT_TRUE(log.load(party).empty() && log.alreadySent(party).isEmpty());
    log.append(entry(u"+1"_s));
    log.append(entry(u"+1"_s, u"failed"_s, u"He said \"no\"\nand left"_s));
    EXPECT_EQ(file(), header + row + "sent,\n" + row + "failed,\"He said \"\"no\"\"\nand left\"\n");
    EXPECT_EQ(mode(logFile()), 0600U);
    EXPECT_EQ(mode(folder.logs()), 0700U);
    const auto entries = log.load(party);
    ASSERT_EQ(entries.size(), 2U);
    EXPECT_EQ(entries[1].time, Moment{763657200});
    EXPECT_NE(entries[0].id, entries[1].id);
    EXPECT_NE(entries[0].id, log.load(party)[0].id);
    log.replace(entries[0], entry(u"+2"_s));
    EXPECT_TRUE(file().startsWith(header + rowOf("+2") + "sent,\n" + row));
    static_cast<void>(log.load(party));
    log.rewrite(party, {});
    EXPECT_EQ(file(), header);
}

// Whoever got the message must not get it again; whoever did not must be able to.
TEST_F(StorageTest, AlreadySentCountsEveryStatusThatBeginsWithSent) {
    for (const QString& status : {u"sent"_s, u"sent_unverified"_s, u"failed"_s, u"Sent"_s})
        log.append(entry(status, status));
    EXPECT_EQ(log.alreadySent(party), (QSet{u"sent"_s, u"sent_unverified"_s}));
    // Names too long for a file's, of which nothing would be written; the last just fits.
    const QString chinese = u"\u4e2d"_s.repeated(100);
    const QString fitting = chinese.left(81) + u'a';
    const QString beyond = u"\U00020000"_s.repeated(63);
    for (const QString& name : {u"a b"_s, chinese, chinese + u'a', beyond, fitting}) {
        LogEntry other = entry(name.right(2));
        other.batch = name;
        log.append(other);
        EXPECT_EQ(log.alreadySent(name), QSet{other.phone});
        EXPECT_TRUE(log.logFile(name).isValidUtf16());
    }
    EXPECT_EQ(log.alreadySent(u"a/b"_s), QSet{u" b"_s});
    EXPECT_EQ(log.alreadySent(chinese), QSet{chinese.right(2)}) << "each has its own";
    EXPECT_TRUE(log.logFile(fitting).endsWith(u'/' + fitting + u".csv"_s));
}

// One line that is odd or cut off must not hide the others.
TEST_F(StorageTest, OddRowsAndDamagedLogsAreReadAsFarAsTheyGo) {
    put("anything\n1,2,3,4,5,6,7\nyesterday,b,n,+1,s,l,sent,d,ninth\r\n"
        "2025-03-05T14:03:22+01:00,b,n,+2,s,l,sent,d");
    const auto entries = log.load(party);
    ASSERT_EQ(entries.size(), 2U);
    EXPECT_EQ(entries[0].time, clock.now());
    EXPECT_EQ(entries[1].time, Moment{762872602});
    EXPECT_EQ(entries[0].detail + entries[1].detail + entries[1].batch, u"ddb"_s);
    put(header + row + "sent,\n" + QByteArray("t,b,n,+2\0,s,l,sent,\0\n", 21) + row +
        "sent,\"open\n" + row);
    QStringList phones;
    for (const LogEntry& each : log.load(party))
        phones += each.phone;
    EXPECT_EQ(phones, (QStringList{u"+1"_s, u"+2\0"_s, u"+1"_s}));
}

// After a loss of power the next person's line would become a part of the torn one, or the whole
// file unreadable, and people be texted again: in a folder that takes no new file, too.
TEST_F(StorageTest, ATornLastLineSwallowsNoOther) {
    put(header);
    permit(logFile(), 0x6666);
    for (const QByteArray& torn :
         {row, row + "sent,\"half a det", row + "sent,\"half a det\n", row + "sent,\"a \"",
          row.left(9), row + "sent,Chlo\xc3", row + "sent,\"\xf0\x9f\x8e"}) {
        put(header + row + "sent,\n" + torn);
        permit(folder.logs(), 0x5555);
        asOrdinaryUser([this] { log.append(entry(u"+3"_s)); });
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
    onFullDisk(before.size() + 10, [this] {
        log.append(entry(u"+2"_s, u"sent_unverified"_s));
        log.replace(entry(u"+1"_s), entry(u"+1"_s, u"failed"_s));
        EXPECT_TRUE(log.alreadySent(party).contains(u"+2"_s)) << "texted again tonight";
        log.replace(entry(u"+2"_s, u"sent_unverified"_s), entry(u"+2"_s));
        EXPECT_EQ(log.load(party).size(), 2);
        log.rewrite(party, log.load(party));
    });
    EXPECT_EQ(file(), before);
    log.retry();
    EXPECT_EQ(file(), header + row + "failed,\n" + rowOf("+2") + "sent,\n");
    // The folder takes new files, so that only the rule keeps the file from being replaced.
    permit(folder.logs(), 0x7777);
    permit(logFile(), 0x4444);
    asOrdinaryUser([this] {
        log.append(entry(u"+3"_s));
        log.replace(entry(u"+1"_s, u"failed"_s), entry(u"+1"_s));
    });
    EXPECT_TRUE(file().contains("failed")) << "what may not be written was replaced";
    permit(logFile(), 0x0000);
    asOrdinaryUser([this] {
        EXPECT_EQ(log.load(party).size(), 2);
        EXPECT_FALSE(log.isUnderstood(party));
        log.rewrite(party, {});
    });
    permit(logFile(), 0x6600);
    EXPECT_EQ(log.load(party).size(), 3);
    EXPECT_TRUE(QDir(folder.logs()).removeRecursively());
    log.append(entry(u"+4"_s));
    EXPECT_EQ(log.load(party).size(), 1) << "the folder was not made again";
    {
        SendLog ending(folder, clock);
        onFullDisk(0, [&] { ending.append(entry(u"+5"_s)); });
    }
    EXPECT_EQ(log.load(party).size(), 2) << "not tried at the end";
}

// Another program's lines, and what it did to the file, are the user's: nothing of it may go.
TEST_F(StorageTest, WhatOthersWroteIsKeptAndTold) {
    log.append(entry(u"+1"_s));
    const auto entries = log.load(party);
    put(file() + rowOf("+2") + "failed,\n");
    log.rewrite(party, entries);
    log.replace(entry(u"+1"_s), entry(u"+1"_s, u"failed"_s));
    EXPECT_EQ(file(), header + row + "failed,\n" + rowOf("+2") + "failed,\n");

    const QByteArray plain = row + "sent,\n";
    const QByteArrayList understood = {header + plain, header + plain + row + "sent,cut o",
                                       header + plain + "\n" + plain, "", "time,ba"};
    for (const QByteArray& bytes : understood) {
        put(bytes);
        static_cast<void>(log.load(party));
        EXPECT_TRUE(log.isUnderstood(party)) << bytes.constData();
    }
    const QByteArrayList puzzling = {QByteArray(header + plain).replace(",", ";"),
                                     plain + plain,
                                     header + plain + "2025-03-14,short\n",
                                     header + rowOf("4.4770091E+11") + "sent,\n",
                                     header + plain + "\xe9\n",
                                     QByteArray("\xff\xfet\0i\0", 6)};
    for (const QByteArray& bytes : puzzling) {
        put(bytes);
        log.rewrite(party, log.load(party));
        EXPECT_FALSE(log.isUnderstood(party)) << bytes.constData();
        log.append(entry(u"+3"_s, u"sent_unverified"_s));
        log.replace(entry(u"+3"_s, u"sent_unverified"_s), entry(u"+3"_s));
        const QByteArray ending = bytes.endsWith('\n') ? "" : "\n";
        EXPECT_EQ(file(), bytes + ending + rowOf("+3") + "sent,\n");
    }
    // A spreadsheet takes the sign away, or writes the number in its own way.
    for (const QByteArray phone : {"14155550100", "(415) 555-0100", "4155550100"}) {
        put(header + rowOf(phone) + "sent,\n" + rowOf("447700900123") + "sent,\n");
        const QSet<QString> sent = log.alreadySent(party);
        EXPECT_TRUE(sent.contains(u"+14155550100"_s)) << phone.constData();
        EXPECT_TRUE(sent.contains(u"+447700900123"_s) && log.isUnderstood(party));
    }
}

// A pipe in place of a file would hang the program, a device fill its memory; a file of an older
// version may be open to others.
TEST_F(StorageTest, OnlyOrdinaryFilesAreReadAndWritten) {
    ASSERT_EQ(::mkfifo(QFile::encodeName(logFile()), 0600), 0);
    log.append(entry(u"+1"_s));
    EXPECT_EQ(log.load(party).size(), 1);
    EXPECT_FALSE(log.isUnderstood(party));
    EXPECT_FALSE(replaceFile(logFile(), "x") || createFile(logFile(), "x"));
    ASSERT_TRUE(QFile::remove(logFile()) && QFile::link(u"/dev/zero"_s, logFile()));
    EXPECT_EQ(log.load(party).size(), 1);
    ASSERT_TRUE(QFile::remove(logFile()));
    const QString real = directory.filePath(u"real.csv"_s);
    writeTestFile(real, header);
    ASSERT_TRUE(QFile::link(real, logFile()));
    for (const bool writes : {true, false}) {
        permit(real, 0x6644);
        writes ? log.retry() : static_cast<void>(log.load(party));
        EXPECT_EQ(mode(real), 0600U);
    }
    EXPECT_EQ(read(real), header + row + "sent,\n") << "a link to a file is the file";
    EXPECT_EQ(createFile(real, "x").error().kind, FileError::Kind::exists);
}
