#include "support/rehearsal_home.h"

#include <gtest/gtest.h>
#include <sqlite3.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>
#include <QVariantMap>

using namespace Qt::StringLiterals;

namespace velmora {

namespace {

QByteArray jsonOf(const QVariantMap& object) {
    return QJsonDocument::fromVariant(object).toJson();
}

QVariant valueOf(const QByteArray& json) {
    const QJsonDocument document = QJsonDocument::fromJson(json);
    EXPECT_TRUE(document.isObject()) << json.constData();
    return document.toVariant();
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
    if (!history_)
        history_.emplace(HistoryWriter::open(historyPath()).value());
    return *history_;
}

qint64 RehearsalHome::record(const HistoryMessage& message, ChatStyle style) {
    return history().add(message, style).value();
}

QByteArray person(const QString& identifier, const QString& givenName, const QString& familyName,
                  const QString& phone, const QStringList& emailAddresses) {
    QVariantMap card{{u"identifier"_s, identifier},
                     {u"givenName"_s, givenName},
                     {u"familyName"_s, familyName},
                     {u"emailAddresses"_s, emailAddresses}};
    const QVariantMap number{{u"label"_s, u"_$!<Mobile>!$_"_s}, {u"value"_s, phone}};
    if (!phone.isEmpty())
        card[u"phoneNumbers"_s] = QVariantList{number};
    return jsonOf(card);
}

QByteArray addressBook(const std::vector<QByteArray>& people,
                       const std::vector<RehearsalGroup>& groups) {
    QVariantList contacts;
    for (const QByteArray& each : people)
        contacts.append(valueOf(each));
    QVariantList all;
    for (const auto& [identifier, name, members] : groups)
        all.append(
            QVariantMap{{u"identifier"_s, identifier}, {u"name"_s, name}, {u"members"_s, members}});
    return jsonOf({{u"contacts"_s, contacts}, {u"groups"_s, all}});
}

QByteArray messagesOnLine(const QString& line, const std::map<QString, QByteArray>& people) {
    QVariantMap settings;
    for (const auto& [phone, json] : people)
        settings[phone] = valueOf(json);
    return jsonOf({{u"line"_s, line}, {u"people"_s, settings}});
}

}  // namespace velmora
