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
