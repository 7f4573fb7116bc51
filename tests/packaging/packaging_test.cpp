// What a Mac's bundle is made of, checked where there is no Mac.

#include <gtest/gtest.h>

#include <QDir>
#include <QImage>
#include <QProcess>
#include <QTemporaryDir>
#include <QXmlStreamReader>

#include "support/rehearsal_home.h"

using namespace Qt::StringLiterals;

using velmora::writeTestFile;

namespace {

const QString sourceRoot = QStringLiteral(VELMORA_SOURCE_ROOT);

struct Outcome {
    int code;
    QString output, errors;
};

Outcome run(const QString& program, const QStringList& arguments, const QString& tools = {}) {
    QProcess process;
    QProcessEnvironment surroundings = QProcessEnvironment::systemEnvironment();
    surroundings.insert(u"PATH"_s, tools + u':' + surroundings.value(u"PATH"_s));
    process.setProcessEnvironment(surroundings);
    process.start(program, arguments);
    EXPECT_TRUE(process.waitForFinished()) << qPrintable(process.errorString());
    return {process.exitCode(), QString::fromUtf8(process.readAllStandardOutput()),
            QString::fromUtf8(process.readAllStandardError()).trimmed()};
}

/// A built bundle, and the tools of a Mac that only pretend: of a program or a library, what
/// describes it is its content.
class Package : public testing::Test {
  protected:
    Package() {
        for (const auto& [name, does] : std::map<QString, QByteArray>{
                 {u"otool"_s, "cat \"$4\""},
                 {u"ditto"_s, "cp -R \"$1\" \"$2\""},
                 {u"macdeployqt"_s, "cat \"$(dirname \"$0\")/deployed\""},
                 {u"codesign"_s, "test ! -e \"$(dirname \"$0\")/refused\""},
                 {u"xcrun"_s, ""},
                 {u"hdiutil"_s, ""},
                 {u"spctl"_s, ""}}) {
            writeTestFile(path(name), "#!/bin/sh\n" + does + '\n');
            QFile::setPermissions(path(name), QFile::ReadOwner | QFile::ExeOwner);
        }
        writeTestFile(path(u"deployed"_s), "WARNING: there is nothing to do\n");
        writeTestFile(app + u"/Contents/Info.plist"_s,
                      "<key>LSMinimumSystemVersion</key>\n<string>14.0</string>\n");
        build(program + needs("14.0"), load("@loader_path/libA.dylib") + needs("15.2"));
    }

    static QByteArray command(const QByteArray& name, const QByteArray& value) {
        return "Load command 1\n      cmd " + name + "\n  cmdsize 56\n" + value + '\n';
    }
    static QByteArray load(const QByteArray& library) {
        return command("LC_LOAD_DYLIB", "     name " + library + " (offset 24)");
    }
    static QByteArray rpath(const QByteArray& folder) {
        return command("LC_RPATH", "     path " + folder + " (offset 12)");
    }
    static QByteArray needs(const QByteArray& system) {
        return command("LC_BUILD_VERSION", "    minos " + system);
    }

    [[nodiscard]] QString path(const QString& name) const { return folder.filePath(name); }
    void build(const QByteArray& executable, const QByteArray& library) const {
        writeTestFile(app + u"/Contents/MacOS/Velmora"_s, executable);
        writeTestFile(app + u"/Contents/Frameworks/libA.dylib"_s, library);
    }
    [[nodiscard]] Outcome package(const QStringList& more) const {
        return run(sourceRoot + u"/packaging/macos/package"_s, more, folder.path());
    }
    [[nodiscard]] QString complaint() const {
        return run(sourceRoot + u"/packaging/macos/self-contained"_s, {app}, folder.path()).errors;
    }

    const QTemporaryDir folder;
    const QString app = path(u"Other.app"_s);
    const QByteArray program = load("/usr/lib/libSystem.B.dylib") + load("@rpath/libA.dylib") +
                               rpath("@executable_path/../Frameworks");
    const QStringList named = {
        u"--identity"_s, u"Ann Lee (TEAM)"_s, u"--profile"_s, u"velmora"_s,
        u"--app"_s,      u"Other.app"_s,      u"--output"_s,  path(u"Velmora.dmg"_s)};
};

// Catches a step that moved: nothing may change after it is sealed, and the ticket comes last. A
// dry run that does something or shows another order; a step that fails without an end.
TEST_F(Package, SignsInsideOutThenNotarisesThenStaples) {
    QStringList arguments = named;
    arguments[5] = app;
    const Outcome dry = package(arguments + QStringList(u"--dry-run"_s));
    ASSERT_EQ(dry.code, 0) << qPrintable(dry.errors);
    EXPECT_FALSE(QFile::exists(path(u"package"_s))) << "a dry run did something";
    const Outcome done = package(arguments);
    ASSERT_EQ(done.code, 0) << qPrintable(done.errors);
    EXPECT_EQ(done.output, dry.output);
    const QStringList order = {u"\nditto "_s + app,
                               u"\ndeploy "_s,
                               u"least-system "_s,
                               u"self-contained "_s,
                               u"/Contents -depth"_s,
                               u"-exec codesign --force"_s,
                               u"--entitlements packaging/macos/Velmora.entitlements"_s,
                               u"\ncodesign --verify --deep --strict"_s,
                               u"\nhdiutil create"_s,
                               u"\ncodesign --force --timestamp --sign"_s,
                               u"notarytool submit "_s,
                               u"stapler staple "_s,
                               u"spctl --assess"_s};
    qsizetype place = 0;
    for (const QString& step : order) {
        const qsizetype found = dry.output.indexOf(step, place);
        ASSERT_GE(found, place) << qPrintable(step + u" is missing or late in\n"_s + dry.output);
        place = found + step.size();
    }
    EXPECT_EQ(dry.output.count(u"--entitlements"_s), 1) << "only the application gets them";
    QFile list(path(u"package/Velmora.app/Contents/Info.plist"_s));
    EXPECT_TRUE(list.open(QIODevice::ReadOnly) && list.readAll().contains("<string>15.2<"));

    writeTestFile(path(u"refused"_s), "");
    const Outcome unsigned_ = package(arguments);
    EXPECT_NE(unsigned_.code, 0);
    EXPECT_FALSE(unsigned_.output.contains(u"--verify"_s)) << "went on unsigned";
    writeTestFile(path(u"deployed"_s), "ERROR: no file at \"/opt/homebrew/libA.dylib\"\n");
    const Outcome incomplete = package(arguments);
    EXPECT_NE(incomplete.code, 0);
    EXPECT_TRUE(incomplete.errors.contains(u"macdeployqt could not bring in everything"_s));
    EXPECT_FALSE(incomplete.output.contains(u"codesign"_s)) << "went on without a library";
}

TEST_F(Package, WhatIsMissingIsNamedInOneSentence) {
    EXPECT_EQ(package({}).errors, u"Name the signing certificate with --identity."_s);
    EXPECT_EQ(package(named.first(2)).errors,
              u"Name notarytool's keychain profile with --profile."_s);
    EXPECT_EQ(package({u"--profile"_s}).errors, u"The argument --profile needs a value."_s);
    ASSERT_TRUE(QDir().mkpath(path(u"Velmora.dmg"_s)));
    EXPECT_EQ(package(named).errors, path(u"Velmora.dmg"_s) +
                                         u" cannot be the disk image; name a file ending in .dmg "
                                         "with --output."_s);
    EXPECT_TRUE(QFile::remove(path(u"spctl"_s)));
    const Outcome noTools = package(named.first(4));
    EXPECT_EQ(noTools.code, 1);
    EXPECT_TRUE(noTools.errors.startsWith(u"The tool spctl "_s)) << qPrintable(noTools.errors);
}

// Catches a check that passes a bundle that other Macs cannot start, or one it cannot read.
TEST_F(Package, ABundleThatDoesNotStartEverywhereIsRefused) {
    writeTestFile(path(u"libB.dylib"_s), "");
    const std::vector<std::tuple<QByteArray, QByteArray, QString>> cases = {
        {program + needs("14.0"), load("@rpath/libA.dylib") + needs("9.9"), {}},
        {program, load("/opt/homebrew/libB.dylib"),
         u"Frameworks/libA.dylib loads /opt/homebrew/libB.dylib, which is not in the bundle."_s},
        {load("@rpath/libA.dylib"), rpath("@loader_path"),
         u"MacOS/Velmora loads @rpath/libA.dylib, which is not in the bundle."_s},
        {program, load("@loader_path/../../../libB.dylib"),
         u"Frameworks/libA.dylib loads @loader_path/../../../libB.dylib, which is not in the bundle."_s},
        {program, load("@executable_path/libB.dylib"),
         u"Frameworks/libA.dylib loads @executable_path/libB.dylib, which is not in the bundle."_s},
        {program + rpath("/opt/homebrew/lib"),
         {},
         u"MacOS/Velmora looks for libraries in /opt/homebrew/lib."_s},
        {program, needs("26.0"),
         u"Frameworks/libA.dylib needs macOS 26.0, and the bundle says 14.0."_s},
        {{}, {}, u"What "_s + app + u"/Contents/MacOS/Velmora loads could not be listed."_s}};
    for (const auto& [executable, library, sentence] : cases) {
        build(executable, library);
        EXPECT_EQ(complaint(), sentence);
    }
}

// Catches a bundle that the system would kill at its first question to Contacts or to Messages.
TEST(Bundle, AsksForWhatItUsesAndSaysWhy) {
    for (const auto& [name, held] : std::vector<std::pair<QString, QByteArrayList>>{
             {u"Info.plist.in"_s,
              {"<key>NSContactsUsageDescription</key>\n    <string>Velmora ",
               "<key>NSAppleEventsUsageDescription</key>\n    <string>Velmora ",
               "<key>LSMultipleInstancesProhibited</key>\n    <true/>",
               "<string>${MACOSX_BUNDLE_SHORT_VERSION_STRING}</string>"}},
             {u"Velmora.entitlements"_s,
              {"<key>com.apple.security.automation.apple-events</key>\n    <true/>",
               "<key>com.apple.security.personal-information.addressbook</key>\n    <true/>"}}}) {
        QFile file(sourceRoot + u"/packaging/macos/"_s + name);
        ASSERT_TRUE(file.open(QIODevice::ReadOnly));
        const QByteArray list = file.readAll();
        QXmlStreamReader xml(list);
        while (!xml.atEnd())
            xml.readNext();
        EXPECT_FALSE(xml.hasError()) << qPrintable(xml.errorString());
        for (const QByteArray& each : held)
            EXPECT_TRUE(list.contains(each)) << each.constData();
    }
}

TEST(Icon, EverySizeOfTheSetIsDrawn) {
    const QTemporaryDir folder;
    const Outcome drawn = run(QStringLiteral(VELMORA_ICON_SET), {folder.path()});
    ASSERT_EQ(drawn.code, 0) << qPrintable(drawn.errors);
    for (const int points : {16, 32, 128, 256, 512}) {
        for (const int scale : {1, 2}) {
            const QImage image(folder.filePath(
                u"icon_%1x%1%2.png"_s.arg(points).arg(scale == 2 ? u"@2x"_s : QString())));
            EXPECT_EQ(image.width(), points * scale);
            EXPECT_GT(image.pixelColor(image.rect().center()).alpha(), 200);
            EXPECT_EQ(image.pixelColor(0, 0).alpha(), 0) << "the corners are not rounded";
        }
    }
}

}  // namespace
