// What a Mac's bundle is made of, checked where there is no Mac.

#include <gtest/gtest.h>

#include <QDateTime>
#include <QDir>
#include <QFileInfo>
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

Outcome run(const QString& program, const QStringList& arguments) {
    QProcess process;
    process.start(program, arguments);
    EXPECT_TRUE(process.waitForFinished()) << qPrintable(process.errorString());
    return {process.exitCode(), QString::fromUtf8(process.readAllStandardOutput()),
            QString::fromUtf8(process.readAllStandardError()).trimmed()};
}

Outcome package(const QStringList& arguments) {
    return run(sourceRoot + u"/packaging/macos/package"_s, arguments);
}

// Catches a step that moved: nothing may change after it is sealed, and the ticket comes last.
TEST(Package, ADryRunSignsInsideOutThenNotarisesThenStaples) {
    const QFileInfo staging(sourceRoot + u"/build/package"_s);
    const QDateTime before = staging.lastModified();
    const Outcome dry =
        package({u"--identity"_s, u"Developer ID Application: Ann Lee (TEAM)"_s, u"--profile"_s,
                 u"velmora"_s, u"--app"_s, u"Other.app"_s, u"--dry-run"_s});
    ASSERT_EQ(dry.code, 0) << qPrintable(dry.errors);
    const QStringList order = {u"\nditto "_s + QDir::current().filePath(u"Other.app"_s),
                               u"\nmacdeployqt build/package/Velmora.app -qmldir=src/ui"_s,
                               u"\npackaging/macos/self-contained build/package/Velmora.app"_s,
                               u"\nfind build/package/Velmora.app/Contents -depth"_s,
                               u"-exec codesign --force"_s,
                               u"--entitlements packaging/macos/Velmora.entitlements"_s,
                               u"\ncodesign --verify --deep --strict"_s,
                               u"\nhdiutil create"_s,
                               u"\ncodesign --force --timestamp --sign"_s,
                               u"build/Velmora.dmg"_s,
                               u"notarytool submit build/Velmora.dmg --keychain-profile velmora"_s,
                               u"stapler staple build/Velmora.dmg"_s,
                               u"spctl --assess"_s};
    qsizetype place = 0;
    for (const QString& step : order) {
        const qsizetype found = dry.output.indexOf(step, place);
        ASSERT_GE(found, place) << qPrintable(step) << " is missing or out of order in\n"
                                << qPrintable(dry.output);
        place = found + step.size();
    }
    EXPECT_EQ(dry.output.count(u"--entitlements"_s), 1) << "only the application gets them";
    EXPECT_EQ(QFileInfo(staging.filePath()).lastModified(), before)
        << "a dry run changed something";
}

TEST(Package, WhatIsMissingIsNamedInOneSentence) {
    EXPECT_EQ(package({}).errors, u"Name the signing certificate with --identity."_s);
    EXPECT_EQ(package({u"--identity"_s, u"X"_s}).errors,
              u"Name notarytool's keychain profile with --profile."_s);
    EXPECT_EQ(package({u"--profile"_s}).errors, u"The argument --profile needs a value."_s);
    const QStringList named = {u"--identity"_s, u"X"_s, u"--profile"_s, u"Y"_s};
    const QTemporaryDir folder(QDir::tempPath() + u"/XXXXXX.dmg"_s);
    EXPECT_EQ(
        package(named + QStringList{u"--output"_s, folder.path()}).errors,
        folder.path() + u" cannot be the disk image; name a file ending in .dmg with --output."_s);
    const Outcome noTools = package(named);
    EXPECT_EQ(noTools.code, 1);
    EXPECT_TRUE(noTools.errors.startsWith(u"The tool "_s)) << qPrintable(noTools.errors);
}

// Catches a check that passes a bundle that starts only where Homebrew is, or one it cannot read.
TEST(Package, ABundleThatLoadsFromHomebrewIsRefused) {
    const QTemporaryDir folder;
    writeTestFile(folder.filePath(u"otool"_s), "#!/bin/sh\nshift\nexec cat \"$@\"\n");
    QFile::setPermissions(folder.filePath(u"otool"_s), QFile::ReadOwner | QFile::ExeOwner);
    for (const auto& [loads, code] :
         std::map<QByteArray, int>{{"\t/usr/lib/x.dylib\n\t@rpath/y.dylib", 0},
                                   {"\t/usr/lib/x.dylib\n\t/opt/homebrew/opt/y.dylib", 1},
                                   {"", 1}}) {
        writeTestFile(folder.filePath(u"Contents/MacOS/Velmora"_s), "Velmora:\n" + loads);
        EXPECT_EQ(run(u"env"_s, {u"PATH="_s + folder.path() + u':' + qEnvironmentVariable("PATH"),
                                 sourceRoot + u"/packaging/macos/self-contained"_s, folder.path()})
                      .code,
                  code)
            << loads.constData();
    }
}

// The keys and values of a property list's dictionary, with the values that are texts or true.
QMap<QString, QString> propertyList(const QString& path) {
    QFile file(sourceRoot + path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << qPrintable(path);
    QXmlStreamReader xml(&file);
    QMap<QString, QString> found;
    QString key;
    while (!xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement)
            continue;
        const QString element = xml.name().toString();
        if (element == u"key")
            found.insert(key = xml.readElementText(), QString());
        else if (element == u"string")
            found.insert(key, xml.readElementText());
        else if (element == u"true")
            found.insert(key, element);
    }
    EXPECT_FALSE(xml.hasError()) << qPrintable(path + u": "_s + xml.errorString());
    return found;
}

// Catches a bundle that the system would kill at its first question to Contacts or to Messages.
TEST(Bundle, AsksForWhatItUsesAndSaysWhy) {
    const auto info = propertyList(u"/packaging/macos/Info.plist.in"_s);
    EXPECT_TRUE(info.value(u"NSContactsUsageDescription"_s).endsWith(u'.'));
    EXPECT_TRUE(info.value(u"NSAppleEventsUsageDescription"_s).contains(u"Messages"));
    EXPECT_EQ(info.value(u"CFBundleShortVersionString"_s),
              u"${MACOSX_BUNDLE_SHORT_VERSION_STRING}");
    EXPECT_EQ(info.value(u"LSMultipleInstancesProhibited"_s), u"true");
    const auto rights = propertyList(u"/packaging/macos/Velmora.entitlements"_s);
    EXPECT_EQ(rights.keys(),
              (QStringList{u"com.apple.security.automation.apple-events"_s,
                           u"com.apple.security.personal-information.addressbook"_s}));
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
