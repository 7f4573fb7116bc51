#include <limits>

#include "storage/storage_world.h"

namespace velmora {
namespace {

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

// What could not be used at a start is the user's all the same: a session with new settings must
// not destroy it, nor what an earlier one kept.
TEST_F(StorageTest, SettingsThatCannotBeUsedAreKeptBesideTheNewOnes) {
    const QString path = folder.path() + u"/config.json"_s;
    const auto kept = [&](const QString& number) {
        return folder.path() + u"/config (kept%1).json"_s.arg(number);
    };
    const QString sentence =
        u"Velmora couldn't %1 its settings file, which is kept as \"%2\", and "
        "starts with new settings."_s;
    writeTestFile(path, "{ torn");
    EXPECT_EQ(store.load(), AppConfig());
    EXPECT_EQ(read(path), "{ torn") << "reading writes nothing";
    permit(folder.path(), 0x5555);
    {
        const auto user = asOrdinaryUser();
        EXPECT_EQ(store.save(fullConfig()), std::nullopt);
    }
    permit(folder.path(), 0x7777);
    EXPECT_EQ(read(path), "{ torn") << "replaced before it was kept";
    EXPECT_EQ(store.save(fullConfig()), sentence.arg(u"understand"_s, kept({})));
    EXPECT_EQ(store.save(fullConfig()), std::nullopt) << "said twice";
    EXPECT_EQ(read(kept({})), "{ torn");
    EXPECT_EQ(store.load(), fullConfig());
    permit(path, 0x0000);
    {
        const auto user = asOrdinaryUser();
        EXPECT_EQ(store.load(), AppConfig());
        EXPECT_EQ(store.save(AppConfig()), sentence.arg(u"read"_s, kept(u" 2"_s)));
    }
    permit(kept(u" 2"_s), 0x6600);
    EXPECT_EQ(decodeConfig(read(kept(u" 2"_s))), fullConfig());
    for (const QString& number : {u" 3"_s, u" 4"_s}) {
        EXPECT_TRUE(QFile::remove(path));
        const QByteArray name = QFile::encodeName(path);
        EXPECT_EQ(
            number == u" 3"_s ? ::mkdir(name.constData(), 0700) : ::mkfifo(name.constData(), 0600),
            0);
        EXPECT_EQ(store.load(), AppConfig());
        EXPECT_EQ(store.save(fullConfig()), sentence.arg(u"read"_s, kept(number)));
        EXPECT_EQ(store.load(), fullConfig());
    }
    EXPECT_TRUE(QFile::remove(path));
    EXPECT_EQ(store.load(), AppConfig());
    EXPECT_EQ(store.save(fullConfig()), std::nullopt) << "nothing was lost";
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

}  // namespace
}  // namespace velmora
