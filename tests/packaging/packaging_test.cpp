// What a Mac's bundle is made of, checked where there is no Mac.

#include <gtest/gtest.h>

#include <QDir>
#include <QProcess>
#include <QTemporaryDir>
#include <QXmlStreamReader>

#include "storage/files.h"
#include "support/rehearsal_home.h"

using namespace Qt::StringLiterals;

using namespace velmora;

namespace {

const QString scripts = QStringLiteral(VELMORA_SOURCE_ROOT "/packaging/macos/");

struct Outcome {
    int code;
    QString output, errors;
};

/// The tools of a Mac, which only pretend. What describes a program or a library is its content.
constexpr auto tool = R"(#!/bin/sh
case ${0##*/} in
  otool) sed 's/\([A-Z_]*\) \(.*\)/  cmd \1\n    \2 (offset 24)/' "$4" ;;
  ditto) cp -R "$1" "$2" ;;
  macdeployqt) cat "${0%/*}/left out" || echo "WARNING: there is nothing to do" ;;
  codesign) test ! -e "${0%/*}/refused" ;;
esac
)";

class Package : public testing::Test {
  protected:
    Package() {
        for (const QString& name :
             u"otool ditto macdeployqt codesign xcrun hdiutil spctl"_s.split(u' ')) {
            writeTestFile(path(name), tool);
            QFile::setPermissions(path(name), QFile::ReadOwner | QFile::ExeOwner);
        }
        writeTestFile(app + u"/Contents/Info.plist"_s,
                      "<key>LSMinimumSystemVersion</key>\n<string>14.0</string>\n");
        build(program + "LC_BUILD_VERSION minos 14.0\n",
              "LC_ID_DYLIB name /opt/libA.dylib\nLC_LOAD_DYLIB name "
              "@loader_path/libA.dylib\nLC_BUILD_VERSION minos 15.2\n");
    }

    [[nodiscard]] QString path(const QString& name) const { return folder.filePath(name); }
    void build(const QByteArray& executable, const QByteArray& library) const {
        writeTestFile(app + u"/Contents/MacOS/Velmora"_s, executable);
        writeTestFile(app + u"/Contents/Frameworks/libA.dylib"_s, library);
    }
    [[nodiscard]] Outcome run(const QString& script, const QStringList& arguments) const {
        QProcess process;
        QProcessEnvironment surroundings = QProcessEnvironment::systemEnvironment();
        surroundings.insert(u"PATH"_s, folder.path() + u':' + surroundings.value(u"PATH"_s));
        process.setProcessEnvironment(surroundings);
        process.start(scripts + script, arguments);
        EXPECT_TRUE(process.waitForFinished()) << qPrintable(process.errorString());
        return {process.exitCode(), QString::fromUtf8(process.readAllStandardOutput()),
                QString::fromUtf8(process.readAllStandardError()).trimmed()};
    }

    const QTemporaryDir folder;
    const QString app = path(u"Other.app"_s);
    const QByteArray program =
        "LC_LOAD_DYLIB name /usr/lib/libSystem.B.dylib\nLC_LOAD_DYLIB name @rpath/libA.dylib\n"
        "LC_RPATH path @executable_path/../Frameworks\n";
    const QStringList named = u"--identity|Ann Lee (TEAM)|--profile|velmora|--app|%1|--output|%2"_s
                                  .arg(app, path(u"Velmora.dmg"_s))
                                  .split(u'|');
};

// Catches a step that moved: nothing may change after it is sealed, and the ticket comes last. A
// dry run that does something or shows another order; a step that fails without an end.
TEST_F(Package, SignsInsideOutThenNotarisesThenStaples) {
    const Outcome dry = run(u"package"_s, named + QStringList(u"--dry-run"_s));
    ASSERT_EQ(dry.code, 0) << qPrintable(dry.errors);
    EXPECT_FALSE(QFile::exists(path(u"package"_s))) << "a dry run did something";
    const Outcome done = run(u"package"_s, named);
    ASSERT_EQ(done.code, 0) << qPrintable(done.errors);
    EXPECT_EQ(done.output, dry.output);
    const QString steps =
        u"\nditto |\ndeploy |least-system |self-contained |/Contents -depth|-exec codesign --force|"
        "--entitlements packaging/macos/Velmora.entitlements|\ncodesign --verify --deep --strict|"
        "\nhdiutil create|\ncodesign --force --timestamp --sign|notarytool submit |"
        "stapler staple |spctl --assess"_s;
    qsizetype place = 0;
    for (const QString& step : steps.split(u'|')) {
        place = dry.output.indexOf(step, place);
        ASSERT_GE(place, 0) << qPrintable(step + u" is missing or late in\n"_s + dry.output);
        place += step.size();
    }
    EXPECT_EQ(dry.output.count(u"--entitlements"_s), 1) << "only the application gets them";
    EXPECT_TRUE(
        readFile(path(u"package/Velmora.app/Contents/Info.plist"_s))->contains("<string>15.2<"));

    writeTestFile(path(u"refused"_s), "");
    const Outcome unsealed = run(u"package"_s, named);
    EXPECT_NE(unsealed.code, 0);
    EXPECT_FALSE(unsealed.output.contains(u"--verify"_s)) << "went on unsigned";
    writeTestFile(path(u"left out"_s), "ERROR: no file at \"/opt/homebrew/libA.dylib\"\n");
    const Outcome incomplete = run(u"package"_s, named);
    EXPECT_NE(incomplete.code, 0);
    EXPECT_TRUE(incomplete.errors.contains(u"macdeployqt could not bring in everything"_s));
    EXPECT_FALSE(incomplete.output.contains(u"codesign"_s)) << "went on without a library";
}

// Catches a check that passes a bundle that other Macs cannot start, or one it cannot read.
TEST_F(Package, ABundleThatDoesNotStartEverywhereIsRefused) {
    writeTestFile(path(u"libB.dylib"_s), "");
    std::vector<std::tuple<QByteArray, QByteArray, QString>> cases = {
        {program + "LC_BUILD_VERSION minos 14.0\n",
         "LC_LOAD_DYLIB name @rpath/libA.dylib\nLC_BUILD_VERSION minos 9.9\n", u""_s},
        {"LC_LOAD_DYLIB name @rpath/libA.dylib\n", "LC_RPATH path @loader_path\n",
         u"MacOS/Velmora loads @rpath/libA.dylib, which is not in the bundle."_s},
        {program + "LC_RPATH path /opt/homebrew/lib\n", "",
         u"MacOS/Velmora looks for libraries in /opt/homebrew/lib."_s},
        {program, "LC_BUILD_VERSION minos 26.0\n",
         u"Frameworks/libA.dylib needs macOS 26.0, and the bundle says 14.0."_s},
        {"", "", u"What "_s + app + u"/Contents/MacOS/Velmora loads could not be listed."_s}};
    for (const char* each : {"/opt/homebrew/libB.dylib", "@loader_path/../../../libB.dylib",
                             "@executable_path/libB.dylib"})
        cases.emplace_back(program, QByteArray("LC_LOAD_DYLIB name ") + each,
                           u"Frameworks/libA.dylib loads %1, which is not in the bundle."_s.arg(
                               QLatin1StringView(each)));
    for (const auto& [executable, library, sentence] : cases) {
        build(executable, library);
        EXPECT_EQ(run(u"self-contained"_s, {app}).errors, sentence);
    }
}

// Catches a bundle that the system would kill at its first question to Contacts or to Messages.
TEST(Bundle, AsksForWhatItUsesAndSaysWhy) {
    QByteArray all;
    for (const QString& name : {u"Info.plist.in"_s, u"Velmora.entitlements"_s}) {
        const QByteArray list = readFile(scripts + name).value_or("");
        QXmlStreamReader xml(list);
        while (!xml.atEnd())
            xml.readNext();
        EXPECT_FALSE(xml.hasError()) << qPrintable(xml.errorString());
        all += list;
    }
    for (const char* held :
         {"NSContactsUsageDescription</key>\n    <string>Velmora ",
          "NSAppleEventsUsageDescription</key>\n    <string>Velmora ",
          "LSMultipleInstancesProhibited</key>\n    <true/>",
          "<string>${MACOSX_BUNDLE_SHORT_VERSION_STRING}</string>",
          ">com.apple.security.automation.apple-events</key>\n    <true/>",
          ">com.apple.security.personal-information.addressbook</key>\n    <true/>"})
        EXPECT_TRUE(all.contains(held)) << held;
}

}  // namespace
