#include <limits>

#include "storage/storage_world.h"

using namespace velmora;

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

struct SettingsTest : StorageTest {
    const QString path = folder.path() + u"/config.json"_s;
};

// One bit lost, or a key forgotten in reading or writing, changes settings at every start; a failed
// save that destroys the file loses every template and note.
TEST_F(SettingsTest, AreLoadedAsTheyWereSavedLast) {
    EXPECT_EQ(store.load(), AppConfig());
    EXPECT_FALSE(QFile::exists(path));
    store.save(fullConfig());
    EXPECT_EQ(ConfigStore(folder).load(), fullConfig());
    EXPECT_EQ(mode(path), 0600U);
    const auto save = [this] { store.save(AppConfig()); };
    onFullDisk(0, save);
    onFullDisk(100, save);
    permit(folder.path(), 0x5555);
    asOrdinaryUser(save);
    EXPECT_EQ(store.load(), fullConfig());
    EXPECT_EQ(QDir(folder.path()).entryList(QDir::Files), QStringList{u"config.json"_s});
    save();
    EXPECT_EQ(store.load(), AppConfig());
}

// What could not be used at a start is the user's all the same: a session with new settings must
// not destroy it, nor what an earlier one kept.
TEST_F(SettingsTest, ThatCannotBeUsedAreKeptBesideTheNewOnes) {
    const QByteArray name = QFile::encodeName(path);
    const std::vector<std::pair<QString, std::function<void()>>> obstacles = {
        {u"understand"_s, [&] { writeTestFile(path, "{ torn"); }},
        {u"read"_s, [&] { permit(path, 0x0000); }},
        {u"read"_s, [&] { EXPECT_TRUE(QFile::remove(path) && QDir().mkdir(path)); }},
        {u"read"_s, [&] { EXPECT_TRUE(QFile::remove(path) && ::mkfifo(name, 0600) == 0); }},
    };
    QStringList kept;
    asOrdinaryUser([&] {
        for (const auto& [verb, obstruct] : obstacles) {
            const QString number = kept.isEmpty() ? QString() : u" %1"_s.arg(kept.size() + 1);
            kept.append(folder.path() + u"/config (kept%1).json"_s.arg(number));
            obstruct();
            EXPECT_EQ(store.load(), AppConfig());
            EXPECT_EQ(store.save(fullConfig()),
                      u"Velmora couldn't %1 its settings file, which is kept as \"%2\", and "
                      "starts with new settings."_s.arg(verb, kept.last()));
            EXPECT_EQ(store.save(fullConfig()), std::nullopt) << "said twice";
            EXPECT_EQ(store.load(), fullConfig());
        }
    });
    EXPECT_EQ(read(kept[0]), "{ torn");
    permit(kept[1], 0x6600);
    EXPECT_EQ(decodeConfig(read(kept[1])), fullConfig());
    EXPECT_TRUE(QFile::remove(path));
    EXPECT_EQ(store.load(), AppConfig());
    EXPECT_EQ(store.save(fullConfig()), std::nullopt) << "nothing was lost";

    writeTestFile(path, "{ torn");
    permit(folder.path(), 0x5555);
    EXPECT_EQ(store.load(), AppConfig());
    asOrdinaryUser([this] { EXPECT_EQ(store.save(fullConfig()), std::nullopt); });
    EXPECT_EQ(read(path), "{ torn") << "replaced before it was kept";
}

TEST(SupportFolder, TakesTheOlderOneOnlyIntoAFreePlace) {
    const QTemporaryDir directory;
    const QString older = directory.filePath(u"Kestrune"_s);
    writeTestFile(older + u"/logs/a.csv"_s, "old");
    EXPECT_EQ(SupportFolder(directory.path()).path(), directory.filePath(u"Velmora"_s));
    EXPECT_EQ(read(directory.filePath(u"Velmora/logs/a.csv"_s)), "old");
    EXPECT_EQ(mode(directory.filePath(u"Velmora"_s)), 0700U);
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
