#include <limits>

#include "storage/csv.h"
#include "storage/log_name.h"
#include "storage/log_time.h"
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
}

// Texting somebody in the night, or never at all.
TEST(SendingHours, BothEndsAreInsideAndMidnightMayBe) {
    // The two hours, then times of the day; "!" marks those outside.
    for (const QString& text : {u"10:00 20:00 !09:59:59 10:00:00 20:00:59 !20:01:00"_s,
                                u"22:00 6:00 22:00:00 23:30:00 06:00:59 !06:01:00 !21:59:00"_s,
                                u"9:00 9:00 09:00:00 !09:01:00"_s, u"ten 20:00 03:00:00"_s,
                                u"10:00 9223372036854775807:0 03:00:00"_s}) {
        const QStringList words = text.split(u' ');
        AppConfig config;
        config.quietStart = words[0];
        config.quietEnd = words[1];
        for (const QString& word : words.sliced(2)) {
            const QDateTime time(QDate(2025, 7, 1), QTime::fromString(word.right(8)));
            EXPECT_EQ(isOutsideSendingHours(config, momentOf(time)), word.startsWith(u'!'))
                << qPrintable(text + u" at "_s + word);
        }
    }
    for (const QString& text : {u"25:99 1599"_s, u"7:5 425"_s, u":10::x:30: 630"_s, u"+1:-5 55"_s,
                                u"1:2:99999999999999999999 62"_s})
        EXPECT_EQ(minutesOfDay(text.section(u' ', 0, 0)), text.section(u' ', 1).toInt());
    for (const QString& text : {u""_s, u"10"_s, u"1:2:3"_s, u"10: 30"_s, u"+:1"_s, u"--1:1"_s,
                                u"\u0661\u0660:00"_s, u"1,000:0"_s})
        EXPECT_EQ(minutesOfDay(text), std::nullopt) << text.toStdString();
}

// Another key or default would change the settings of everyone who updates.
TEST(ConfigJSON, HasItsKeysAndDefaultsInCodePointOrder) {
    AppConfig config;
    config.templates = {{u"\U0001f600"_s, {}}, {u"\uff5e"_s, {}}};
    const QByteArray json = encodeConfig(config).value();
    EXPECT_EQ(json.simplified(),
              R"({ "delayMax": 60.0, "delayMin": 30.0, "maxFailures": 3, "maxPerRun": 60, )"
              R"("notes": {}, "picks": {}, "quietEnd": "20:00", "quietStart": "10:00", )"
              R"("senderNumber": "", "templates": { "～": "", "😀": "" }, )"
              R"("termsAccepted": "", "verifyWait": 20.0 })");
    EXPECT_EQ(json.count("\n  \""), 12) << "a line for each key";
    config.delayMax = std::numeric_limits<double>::infinity();
    EXPECT_EQ(encodeConfig(config), std::nullopt);
}

// A file edited by hand must neither be misread nor lose more than it has to.
TEST(ConfigJSON, OnlyWrongTypesAndBrokenTextGiveNothing) {
    AppConfig expected;
    expected.senderNumber = u"+1"_s;
    expected.delayMin = 5;
    EXPECT_EQ(decodeConfig(R"( {"senderNumber":"+1","maxPerRun":60.0,"delayMin":5,"notes":null,
        "selectedGroupID":null,"verifyWait":null,"other":{"notes":[[[[[1]]]]]},"SENDERNUMBER":3} )"),
              expected);
    // What no number and no text can hold, next to what only looks like it.
    expected.notes = {{u"a"_s, u"1e999 \"\\ud800\" \U0001f600"_s}};
    EXPECT_EQ(decodeConfig(R"({"senderNumber":"+1","other":[1e999,{"a":-1E+400,"b":"\\ \ud800"}],
        "notes":{"a":"1e999 \"\\ud800\" \ud83d\ude00"},"delayMin":5,"more":"\udc00\ud800"})"),
              expected);
    EXPECT_EQ(decodeConfig("{}"), AppConfig());
    QByteArrayList members = QByteArray(R"("delayMin":"5" "delayMin":true "delayMax":1e999
        "maxPerRun":"60" "maxPerRun":60.5 "maxPerRun":true "maxPerRun":9223372036854775808
        "maxPerRun":1e19 "maxPerRun":-9223372036854775809 "senderNumber":1 "selectedGroupID":{}
        "templates":[] "templates":{"g":null} "notes":{"g":1} "picks":{"g":"1"}
        "picks":{"g":[null]} "picks":{"g":[["1"]]} "termsAcceptedAt":"now" "quietEnd":"\ud800"
        "quietEnd":"20:00)")
                                 .simplified()
                                 .split(' ');
    members << "\"quietEnd\":\"\xff\"" << "\"quietEnd\":\"\xed\xa0\x80\"";
    for (const QByteArray& member : members)
        EXPECT_EQ(decodeConfig("{\"senderNumber\":\"+1\"," + member + "}"), std::nullopt)
            << member.constData();
    for (const QByteArray& text : {QByteArray(), QByteArray("[]"), QByteArray("{} x")})
        EXPECT_EQ(decodeConfig(text), std::nullopt);
}

// A name with another file than before hides who was texted; one with a slash leaves the folder.
TEST(SafeFileStem, KeepsLettersMarksAndNumbersOfEveryScript) {
    const QString kept = u"\u00e9e\u0301\u0928\u093f\u0663\u00bd\U00020000"_s;
    const std::vector<std::pair<QString, QString>> cases = {
        {u"Spring Party 2025!"_s, u"Spring-Party-2025"_s},
        {u"../a/b\\c"_s, u"a-b-c"_s},
        {u"_-a  b-_-"_s, u"_-a--b-_"_s},
        {kept, kept},
        {u"a\U0001f600b"_s + QChar(0xd800) + u"c"_s, u"a-b-c"_s},
        {u""_s, u"batch"_s},
        {u"!?.---"_s, u"batch"_s}};
    for (const auto& [name, stem] : cases)
        EXPECT_EQ(safeFileStem(name), stem);
}

// A field that takes in its neighbour, or a row that is lost, hides who was texted.
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
        {u"a,"_s, u"a|"_s}};
    for (const auto& [text, expected] : cases) {
        QStringList rows;
        for (const QStringList& fields : parseCSV(text))
            rows += fields.join(u'|');
        EXPECT_EQ(rows.join(u'/'), expected);
    }
    for (const QString& text : {u""_s, u"\""_s, u"\"\""_s, u"\r"_s})
        EXPECT_TRUE(parseCSV(text).empty());
}

// A time an hour off after a change of the clocks. What is no time is judged by tests/fuzz.
TEST(LogTime, CarriesTheOffsetOfItsDay) {
    EXPECT_EQ(formatLogTime({763657200.99}), u"2025-03-14T11:00:00-04:00"_s);
    EXPECT_EQ(formatLogTime({-0.5}, 0), u"2000-12-31T23:59:59Z"_s);
    EXPECT_EQ(formatLogTime({-0.5}, 345), u"2001-01-01T05:44:59+05:45"_s);
    EXPECT_EQ(formatLogTime({-0.5}, -210), u"2000-12-31T20:29:59-03:30"_s);
    EXPECT_EQ(formatLogTime({std::numeric_limits<double>::infinity()}).left(4), u"9999"_s);
    const double autumn = 783928800;  // 2025-11-04 06:00 UTC
    for (double hour = -72; hour < 0; ++hour) {
        const Moment moment{autumn + hour * 3600};
        EXPECT_EQ(parseLogTime(formatLogTime(moment)), moment);
    }
    EXPECT_EQ(parseLogTime(u"2025-03-14T20:45:00+05:45"), Moment{763657200});
    EXPECT_EQ(parseLogTime(u"2024-02-29T00:00:00Z"), Moment{730857600});
    EXPECT_EQ(parseLogTime(u"2025-03-14T15:00:00"), std::nullopt);
}
