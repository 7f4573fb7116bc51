// Reads the sources and fails on what no compiler refuses: an include that points up in the house,
// an area of the screen that reaches into another, a toolkit for windows below the views, a
// platform conditional outside the platform's room, a folder or a file that has grown too large to
// be read.

#include <gtest/gtest.h>

#include <QDirIterator>
#include <QFileInfo>
#include <QMap>
#include <QRegularExpression>

using namespace Qt::StringLiterals;

namespace {

const QString sourceRoot = QStringLiteral(VELMORA_SOURCE_ROOT);

// What each room may include of ours, itself and core aside.
const QMap<QString, QStringList> allowed = {
    {u"sending"_s, {u"storage"_s, u"history"_s}},
    {u"app"_s, {u"storage"_s, u"compose"_s, u"contacts"_s, u"history"_s, u"sending"_s}},
    {u"ui"_s, {u"storage"_s, u"compose"_s, u"contacts"_s, u"history"_s, u"sending"_s, u"app"_s}},
};

// The doors and what they are made of, and how files are written: all that a platform may see
// beside core.
const QStringList doorHeaders = {
    u"contacts/contact_source.h"_s,
    u"contacts/contact_access.h"_s,
    u"history/account_preferences.h"_s,
    u"sending/script_runner.h"_s,
    u"sending/activity_source.h"_s,
    u"app/desktop.h"_s,
    u"app/doorbell.h"_s,
    u"app/product_pages.h"_s,
    u"ui/look/native_look.h"_s,
    u"storage/files.h"_s,
};

struct Source {
    QString path;    // under src/
    QString room;    // its first folder; "" for main.cpp
    QString folder;  // all of them
    QString text;

    [[nodiscard]] bool isView() const { return path.endsWith(u".qml"_s); }
};

QList<Source> sources() {
    QList<Source> found;
    const QDir root(sourceRoot + u"/src"_s);
    QDirIterator files(root.path(), {u"*.cpp"_s, u"*.h"_s, u"*.mm"_s, u"*.qml"_s}, QDir::Files,
                       QDirIterator::Subdirectories);
    while (files.hasNext()) {
        QFile file(files.next());
        EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << qPrintable(file.fileName());
        const QString path = root.relativeFilePath(file.fileName());
        const QString room = path.contains(u'/') ? path.section(u'/', 0, 0) : QString();
        const QString folder = path.section(u'/', 0, -2);
        found.append({path, room, folder, QString::fromUtf8(file.readAll())});
    }
    EXPECT_GT(found.size(), 30) << "the sources were not found under " << qPrintable(root.path());
    return found;
}

QStringList includes(const QString& text, QLatin1String opening) {
    static const QRegularExpression line(u"^#(?:include|import)\\s+([\"<])([^\">]+)"_s,
                                         QRegularExpression::MultilineOption);
    QStringList found;
    for (const QRegularExpressionMatch& match : line.globalMatch(text))
        if (match.captured(1) == opening)
            found.append(match.captured(2));
    return found;
}

// The areas of the screen know nothing of each other; `window` puts them together out of what
// `controls` and `look` give to all.
bool areaMayUse(const QString& folder, const QString& used) {
    return folder == used || folder == u"ui/window" || used == u"ui/look" ||
           (used == u"ui/controls" && folder != u"ui/look");
}

// Where the components of the views lie, by name: those written as a view, and those of C++.
QMap<QString, QString> components(const QList<Source>& all) {
    static const QRegularExpression element(
        u"(?:class|struct) (\\w+)[^;{]*\\{[^}]*?\\bQML_ELEMENT\\b|\\bQML_NAMED_ELEMENT\\((\\w+)"_s);
    QMap<QString, QString> folders;
    for (const Source& source : all) {
        if (source.isView())
            folders[QFileInfo(source.path).baseName()] = source.folder;
        else if (source.room == u"ui")
            for (const QRegularExpressionMatch& match : element.globalMatch(source.text))
                folders[match.captured(1) + match.captured(2)] = source.folder;
    }
    return folders;
}

// The capitalised words of a view that stand alone or before a dot, comments and texts aside.
QStringList names(QString view) {
    static const QRegularExpression silent(
        u"//[^\\n]*|/\\*[\\s\\S]*?\\*/|\"(?:\\\\.|[^\"\\\\])*\""_s);
    static const QRegularExpression name(u"(?<![\\w.])[A-Z]\\w*"_s);
    QStringList found;
    for (const QRegularExpressionMatch& match : name.globalMatch(view.replace(silent, u" "_s)))
        found.append(match.captured());
    return found;
}

bool mayInclude(const Source& source, const QString& included) {
    const QString target = included.section(u'/', 0, 0);
    if (!included.contains(u'/') || source.room.isEmpty() || target == u"core")
        return true;
    if (target == source.room)
        return target != u"ui" || areaMayUse(source.folder, included.section(u'/', 0, -2));
    if (source.room == u"platform")
        return doorHeaders.contains(included);
    return allowed.value(source.room).contains(target);
}

TEST(Architecture, EverySourceKeepsToWhatItsRoomMaySee) {
    static const QRegularExpression windowClass(
        u"^(QGui|QQ|QQml|QtGui|QtQml|QtQuick|QWindow|QPixmap|QImage|QPainter|QColor|QFont|QIcon|QDesktop)"_s);
    static const QRegularExpression conditional(
        u"^\\s*#\\s*(?:if|ifdef|ifndef|elif)\\b.*(?:__APPLE__|__linux__|__GLIBC__|_WIN32|Q_OS_|TARGET_OS)|\\bQt\\.platform\\b"_s,
        QRegularExpression::MultilineOption);
    const QList<Source> all = sources();
    const QMap<QString, QString> folders = components(all);
    ASSERT_EQ(folders.value(u"Theme"_s), u"ui/look"_s);
    ASSERT_EQ(folders.value(u"ComposeModel"_s), u"ui/compose"_s);
    ASSERT_EQ(folders.value(u"Menus"_s), u"ui/controls"_s);
    for (const Source& source : all) {
        const bool isPlatform = source.room == u"platform";
        const bool seesWindows = isPlatform || source.room.isEmpty() || source.room == u"ui";
        for (const QString& included : includes(source.text, "\""_L1))
            EXPECT_TRUE(mayInclude(source, included))
                << qPrintable(source.path) << " may not include " << qPrintable(included);
        for (const QString& included : includes(source.text, "<"_L1))
            EXPECT_TRUE(seesWindows || !windowClass.match(included).hasMatch())
                << qPrintable(source.path) << " includes " << qPrintable(included);
        for (const QString& name : source.isView() ? names(source.text) : QStringList())
            EXPECT_TRUE(areaMayUse(source.folder, folders.value(name, source.folder)))
                << qPrintable(source.path) << " may not name " << qPrintable(name);
        EXPECT_TRUE(isPlatform || !conditional.match(source.text).hasMatch())
            << qPrintable(source.path) << " asks for the platform";
    }
}

TEST(Architecture, FilesAndFoldersCanBeRead) {
    QMap<QString, int> counts;
    for (const Source& source : sources()) {
        EXPECT_LE(source.text.count(u'\n'), source.isView() ? 180 : 250) << qPrintable(source.path);
        ++counts[source.folder];
    }
    counts.remove(u"ui/controls"_s);
    for (const auto& [folder, count] : counts.asKeyValueRange())
        EXPECT_LE(count, 25) << qPrintable(folder);
}

}  // namespace
