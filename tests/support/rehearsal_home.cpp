#include "support/rehearsal_home.h"

#include <gtest/gtest.h>
#include <sqlite3.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <stdexcept>

using namespace Qt::StringLiterals;

namespace velmora {

namespace {

QByteArray jsonOf(const QJsonObject& object) {
    return QJsonDocument(object).toJson(QJsonDocument::Indented);
}

QJsonObject objectOf(const QByteArray& json) {
    const QJsonDocument document = QJsonDocument::fromJson(json);
    EXPECT_TRUE(document.isObject()) << json.constData();
    return document.object();
}

}  // namespace

void writeTestFile(const QString& path, const QByteArray& bytes) {
    EXPECT_TRUE(QDir().mkpath(QFileInfo(path).path()));
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
    EXPECT_EQ(file.write(bytes), bytes.size());
}

std::unique_ptr<sqlite3, int (*)(sqlite3*)> changeHistory(const QString& path, const char* sql) {
    sqlite3* db = nullptr;
    EXPECT_EQ(sqlite3_open(path.toUtf8().constData(), &db), SQLITE_OK);
    EXPECT_EQ(sqlite3_exec(db, sql, nullptr, nullptr, nullptr), SQLITE_OK) << sqlite3_errmsg(db);
    return {db, &sqlite3_close};
}

HistoryWriter& RehearsalHome::history() {
    if (!history_) {
        auto opened = HistoryWriter::open(historyPath());
        if (!opened)
            throw std::runtime_error(opened.error().description.toStdString());
        history_.emplace(std::move(*opened));
    }
    return *history_;
}

qint64 RehearsalHome::record(const HistoryMessage& message, ChatStyle style) {
    const auto row = history().add(message, style);
    EXPECT_TRUE(row.has_value());
    return row.value_or(0);
}

QByteArray person(const QString& identifier, const QString& givenName, const QString& familyName,
                  const QString& phone, const QStringList& emailAddresses) {
    QJsonObject object{{u"identifier"_s, identifier},
                       {u"givenName"_s, givenName},
                       {u"familyName"_s, familyName},
                       {u"emailAddresses"_s, QJsonArray::fromStringList(emailAddresses)}};
    if (!phone.isEmpty()) {
        const QJsonObject entry{{u"label"_s, u"_$!<Mobile>!$_"_s}, {u"value"_s, phone}};
        object.insert(u"phoneNumbers"_s, QJsonArray{entry});
    }
    return jsonOf(object);
}

QByteArray addressBook(const std::vector<QByteArray>& people,
                       const std::vector<RehearsalGroup>& groups) {
    QJsonArray contacts;
    for (const QByteArray& each : people)
        contacts.append(objectOf(each));
    QJsonArray groupObjects;
    for (const RehearsalGroup& group : groups)
        groupObjects.append(QJsonObject{{u"identifier"_s, group.identifier},
                                        {u"name"_s, group.name},
                                        {u"members"_s, QJsonArray::fromStringList(group.members)}});
    return jsonOf({{u"contacts"_s, contacts}, {u"groups"_s, groupObjects}});
}

QByteArray messagesOnLine(const QString& line, const std::map<QString, QByteArray>& people) {
    QJsonObject settings;
    for (const auto& [phone, json] : people)
        settings.insert(phone, objectOf(json));
    return jsonOf({{u"line"_s, line}, {u"people"_s, settings}});
}

}  // namespace velmora
