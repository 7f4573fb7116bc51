#include <limits>

#include "core/config_store.h"
#include "core/storage_home.h"

using namespace Qt::StringLiterals;
using namespace velmora;

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
    config.templates = {{u"\U0001f600"_s, u"quote \" and \u0000 zero"_s}, {u"\uff5e"_s, u"\n"_s}};
    config.notes = {{u"a"_s, u" "_s}};
    config.picks = {{u"g"_s, {u"1"_s, u"2"_s}}, {u"h"_s, {}}};
    config.termsAccepted = currentTermsVersion;
    config.termsAcceptedAt = Moment{763657200.1234567};
    return config;
}

}  // namespace

// Texting somebody in the night, or never at all.
TEST(SendingHours, BothEndsAreInsideAndMidnightMayBe) {
    struct Case {
        QString start, end;
        QTime time;
        bool outside;
    };
    for (const auto& [start, end, time, outside] :
         {Case{u"10:00"_s, u"20:00"_s, {9, 59, 59}, true},
          {u"10:00"_s, u"20:00"_s, {10, 0}, false},
          {u"10:00"_s, u"20:00"_s, {20, 0, 59}, false},
          {u"10:00"_s, u"20:00"_s, {20, 1}, true},
          {u"22:00"_s, u"6:00"_s, {22, 0}, false},
          {u"22:00"_s, u"6:00"_s, {23, 30}, false},
          {u"22:00"_s, u"6:00"_s, {6, 0, 59}, false},
          {u"22:00"_s, u"6:00"_s, {6, 1}, true},
          {u"22:00"_s, u"6:00"_s, {21, 59}, true},
          {u"9:00"_s, u"9:00"_s, {9, 0}, false},
          {u"9:00"_s, u"9:00"_s, {9, 1}, true},
          {u"ten"_s, u"20:00"_s, {3, 0}, false},
          {u"10:00"_s, u"9223372036854775807:0"_s, {3, 0}, false}}) {
        AppConfig config;
        config.quietStart = start;
        config.quietEnd = end;
        const Moment moment = momentOf(QDateTime(QDate(2025, 7, 1), time));
        EXPECT_EQ(isOutsideSendingHours(config, moment), outside)
            << qPrintable(start + u' ' + time.toString());
    }
    const std::vector<std::pair<QString, int>> times = {{u"25:99"_s, 1599},
                                                        {u"7:5"_s, 425},
                                                        {u":10::x:30:"_s, 630},
                                                        {u"+1:-5"_s, 55},
                                                        {u"1:2:99999999999999999999"_s, 62}};
    for (const auto& [text, minutes] : times)
        EXPECT_EQ(minutesOfDay(text), minutes);
    for (const QString& text : {u""_s, u"10"_s, u"1:2:3"_s, u"10: 30"_s, u"+:1"_s, u"--1:1"_s,
                                u"\u0661\u0660:00"_s, u"1,000:0"_s})
        EXPECT_EQ(minutesOfDay(text), std::nullopt) << text.toStdString();
}

// One bit lost, or a key forgotten in reading or writing, changes settings at every start.
TEST(ConfigStore, WhatIsSavedIsLoaded) {
    StorageHome home;
    ConfigStore store(home.folder);
    EXPECT_EQ(store.load(), AppConfig());
    EXPECT_FALSE(QFile::exists(home.folder.path() + u"/config.json"_s));
    store.save(fullConfig());
    EXPECT_EQ(ConfigStore(home.folder).load(), fullConfig());
    EXPECT_EQ(home.mode(home.folder.path() + u"/config.json"_s), 0600U);
    EXPECT_EQ(home.mode(home.folder.path()), 0700U);
    store.save(AppConfig());
    EXPECT_EQ(store.load(), AppConfig());
}

// Another key or default would change the settings of everyone who updates.
TEST(ConfigJSON, HasItsKeysAndDefaultsInCodePointOrder) {
    EXPECT_EQ(encodeConfig(AppConfig()).value().toStdString(), R"({
  "delayMax": 60.0,
  "delayMin": 30.0,
  "maxFailures": 3,
  "maxPerRun": 60,
  "notes": {},
  "picks": {},
  "quietEnd": "20:00",
  "quietStart": "10:00",
  "senderNumber": "",
  "templates": {},
  "termsAccepted": "",
  "verifyWait": 20.0
})");
    const QByteArray json = encodeConfig(fullConfig()).value();
    EXPECT_LT(json.indexOf("\uff5e"), json.indexOf("\U0001f600"));
    AppConfig endless;
    endless.delayMax = std::numeric_limits<double>::infinity();
    EXPECT_EQ(encodeConfig(endless), std::nullopt);
}

// A file edited by hand must neither be misread nor lose more than it has to.
TEST(ConfigJSON, OnlyWrongTypesAndBrokenTextGiveNothing) {
    AppConfig expected;
    expected.senderNumber = u"+1"_s;
    expected.delayMin = 5;
    EXPECT_EQ(decodeConfig(R"( {"senderNumber":"+1","maxPerRun":60.0,"delayMin":5,"notes":null,
        "selectedGroupID":null,"verifyWait":null,"other":{"deep":[[[[[1]]]]]},"SENDERNUMBER":3} )"),
              expected);
    EXPECT_EQ(decodeConfig("{}"), AppConfig());
    const QByteArrayList members{
        R"("delayMin":"5")",          R"("delayMin":true)",
        R"("maxPerRun":"60")",        R"("maxPerRun":60.5)",
        R"("maxPerRun":true)",        R"("maxPerRun":9223372036854775808)",
        R"("maxPerRun":1e19)",        R"("maxPerRun":99999999999999999999)",
        R"("senderNumber":1)",        R"("selectedGroupID":{})",
        R"("templates":[])",          R"("templates":{"g":null})",
        R"("notes":{"g":1})",         R"("picks":{"g":"1"})",
        R"("picks":{"g":[null]})",    R"("picks":{"g":[["1"]]})",
        R"("termsAcceptedAt":"now")", R"("quietEnd":"\ud800")",
        "\"quietEnd\":\"\xff\"",      "\"quietEnd\":\"\xed\xa0\x80\"",
        R"("quietEnd":"20:00)",       R"("delayMax":1e999)"};
    for (const QByteArray& member : members)
        EXPECT_EQ(decodeConfig("{\"senderNumber\":\"+1\"," + member + "}"), std::nullopt)
            << member.constData();
    for (const QByteArray& text : {QByteArray(), QByteArray("[]"), QByteArray("{} x")})
        EXPECT_EQ(decodeConfig(text), std::nullopt);
}

// Recursion over a hostile file overflows the stack; building all of it fills the memory.
TEST(ConfigJSON, SurvivesDepth) {
    const QByteArray open(100'000, '[');
    const QByteArray deep = open + QByteArray(100'000, ']');
    EXPECT_EQ(decodeConfig(open), std::nullopt);
    EXPECT_EQ(decodeConfig("{\"picks\":{\"g\":" + deep + "}}"), std::nullopt);
    EXPECT_EQ(decodeConfig("{\"other\":" + deep + "}"), AppConfig());
    EXPECT_EQ(decodeConfig("{\"picks\":" + QByteArray(5'000'000, '[')), std::nullopt);
}

// A failed save that destroys the file loses every template and note.
TEST(ConfigStore, AFailedSaveLeavesTheOldFile) {
    StorageHome home;
    ConfigStore store(home.folder);
    store.save(fullConfig());
    for (const rlim_t room : {0, 100}) {
        const FullDisk disk(room);
        store.save(AppConfig());
    }
    EXPECT_EQ(store.load(), fullConfig());
    ASSERT_TRUE(QFile::setPermissions(home.folder.path(), QFile::Permissions(0x5555)));
    ASSERT_TRUE(
        QFile::setPermissions(home.folder.path() + u"/config.json"_s, QFile::Permissions(0x6644)));
    {
        const OrdinaryUser user;
        store.save(AppConfig());
        EXPECT_EQ(store.load(), fullConfig());
    }
    QFile::setPermissions(home.folder.path(), QFile::Permissions(0x7700));
    EXPECT_EQ(QDir(home.folder.path()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot),
              QStringList{u"config.json"_s});
}

TEST(SupportFolder, MovesTheOlderFolderOnlyIntoAFreePlace) {
    StorageHome home;
    const QString older = home.directory.path() + u"/Kestrune"_s;
    const auto inHome = [&](const QString& name) { return home.directory.path() + name; };
    writeTestFile(older + u"/logs/a.csv"_s, "old");
    EXPECT_EQ(home.folder.path(), inHome(u"/Velmora"_s));
    EXPECT_EQ(home.read(inHome(u"/Velmora/logs/a.csv"_s)), "old");
    ASSERT_TRUE(QDir().mkpath(older));
    EXPECT_EQ(SupportFolder(home.directory.path()).logs(), inHome(u"/Velmora/logs"_s));
    EXPECT_TRUE(QFile::exists(older));
    // A file where the folder should be: nothing works, nothing breaks.
    writeTestFile(inHome(u"/plain"_s), "file");
    SupportFolder blocked(inHome(u"/plain"_s));
    ConfigStore store(blocked);
    store.save(fullConfig());
    EXPECT_EQ(store.load(), AppConfig());
    EXPECT_EQ(home.read(inHome(u"/plain"_s)), "file");
}
