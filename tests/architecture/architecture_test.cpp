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

// What each room may include of ours, itself and core aside: other rooms, or single headers. Those
// of a platform are the doors and what they are made of, and how files are written.
const QMap<QString, QString> allowed = {
    {u"sending"_s, u"storage history"_s},
    {u"app"_s, u"storage compose contacts history sending"_s},
    {u"ui"_s, u"storage compose contacts history sending app"_s},
    {u"platform"_s,
     u"contacts/contact_source.h contacts/contact_access.h storage/files.h "
     "history/account_preferences.h sending/script_runner.h "
     "sending/activity_source.h app/desktop.h app/doorbell.h app/product_pages.h "
     "ui/look/native_look.h"_s},
};

struct Source {
    QString path;    // under src/
    QString room;    // its first folder; "" for main.cpp
    QString folder;  // all of them
    QString text;
    bool isView = path.endsWith(u".qml"_s);
};

QList<Source> sources() {
    QList<Source> found;
    const QDir root(QStringLiteral(VELMORA_SOURCE_ROOT "/src"));
    QDirIterator files(root.path(), {u"*.cpp"_s, u"*.h"_s, u"*.mm"_s, u"*.qml"_s}, QDir::Files,
                       QDirIterator::Subdirectories);
    while (files.hasNext()) {
        QFile file(files.next());
        EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << qPrintable(file.fileName());
        const QString path = root.relativeFilePath(file.fileName());
        found.append({path, path.section(u'/', 0, -2).section(u'/', 0, 0),
                      path.section(u'/', 0, -2), QString::fromUtf8(file.readAll())});
    }
    EXPECT_GT(found.size(), 30) << "the sources were not found under " << qPrintable(root.path());
    return found;
}

// What the pattern's first group finds in a text.
QStringList captures(const QString& text, const QString& pattern) {
    const QRegularExpression expression(pattern, QRegularExpression::MultilineOption);
    QStringList found;
    for (const QRegularExpressionMatch& match : expression.globalMatch(text))
        found.append(match.captured(match.lastCapturedIndex()));
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
    const QString element =
        uR"((?:class|struct) (\w+)[^;{]*\{[^}]*?\bQML_ELEMENT\b|\bQML_NAMED_ELEMENT\((\w+))"_s;
    QMap<QString, QString> folders;
    for (const Source& source : all) {
        if (source.isView)
            folders[QFileInfo(source.path).baseName()] = source.folder;
        for (const QString& name : captures(source.room == u"ui" ? source.text : u""_s, element))
            folders[name] = source.folder;
    }
    return folders;
}

// The capitalised words of a view that stand alone or before a dot, comments and texts aside.
QStringList names(QString view) {
    static const QRegularExpression silent(uR"(//[^\n]*|/\*[\s\S]*?\*/|"(?:\\.|[^"\\])*")"_s);
    return captures(view.replace(silent, u" "_s), uR"((?<![\w.])([A-Z]\w*))"_s);
}

bool mayInclude(const Source& source, const QString& included) {
    const QString target = included.section(u'/', 0, 0);
    if (!included.contains(u'/') || source.room.isEmpty() || target == u"core")
        return true;
    if (target == source.room)
        return target != u"ui" || areaMayUse(source.folder, included.section(u'/', 0, -2));
    const QStringList others = allowed.value(source.room).split(u' ');
    return others.contains(target) || others.contains(included);
}

TEST(Architecture, EverySourceKeepsToWhatItsRoomMaySee) {
    const QString windowClass =
        uR"(^#(?:include|import)\s+<((?:QGui|QQ|QtGui|QtQml|QtQuick|)"
        uR"(QWindow|QPixmap|QImage|QPainter|QColor|QFont|QIcon|QDesktop).*)>)"_s;
    const QString conditional =
        uR"(^\s*#\s*(?:if|ifdef|ifndef|elif)\b.*(__APPLE__|__linux__|__GLIBC__|_WIN32|Q_OS_|)"
        uR"(TARGET_OS)|\b(Qt\.platform)\b)"_s;
    const QString ours = uR"(^#(?:include|import)\s+"([^"]+))"_s;
    const QList<Source> all = sources();
    const QMap<QString, QString> folders = components(all);
    ASSERT_EQ(folders.value(u"Theme"_s) + folders.value(u"ComposeModel"_s), u"ui/lookui/compose");
    for (const Source& source : all) {
        QStringList wrong;
        for (const QString& included : captures(source.text, ours))
            if (!mayInclude(source, included))
                wrong += included;
        if (!QStringList{u"platform"_s, u"ui"_s, u""_s}.contains(source.room))
            wrong += captures(source.text, windowClass);
        for (const QString& name : source.isView ? names(source.text) : QStringList())
            if (!areaMayUse(source.folder, folders.value(name, source.folder)))
                wrong += name;
        if (source.room != u"platform")
            wrong += captures(source.text, conditional);
        EXPECT_TRUE(wrong.isEmpty())
            << qPrintable(source.path) << ": " << qPrintable(wrong.join(u' '));
    }
}

TEST(Architecture, FilesAndFoldersCanBeRead) {
    QMap<QString, int> counts;
    for (const Source& source : sources()) {
        EXPECT_LE(source.text.count(u'\n'), source.isView ? 180 : 250) << qPrintable(source.path);
        ++counts[source.folder];
    }
    counts.remove(u"ui/controls"_s);
    for (const auto& [folder, count] : counts.asKeyValueRange())
        EXPECT_LE(count, 25) << qPrintable(folder);
}

}  // namespace
