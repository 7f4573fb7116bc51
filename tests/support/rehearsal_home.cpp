#include "support/rehearsal_home.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <stdexcept>

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

RehearsalHome::RehearsalHome() {
    EXPECT_TRUE(folder_.isValid());
}

QString RehearsalHome::applicationSupport() const {
    return folder_.filePath(QStringLiteral(".local/share"));
}

QString RehearsalHome::historyPath() const {
    return folder_.filePath(QStringLiteral("Library/Messages/chat.db"));
}

void RehearsalHome::writeContacts(const QByteArray& json) {
    write(QStringLiteral("Library/Contacts/contacts.json"), json);
}

void RehearsalHome::writeMessages(const QByteArray& json) {
    write(QStringLiteral("Library/Messages/messages.json"), json);
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

void RehearsalHome::write(const QString& name, const QByteArray& bytes) {
    const QString path = folder_.filePath(name);
    EXPECT_TRUE(QDir().mkpath(QFileInfo(path).path()));
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
    EXPECT_EQ(file.write(bytes), bytes.size());
}

QByteArray person(const QString& identifier, const QString& givenName, const QString& familyName,
                  const QString& phone, const QStringList& emailAddresses) {
    QJsonObject object{
        {QStringLiteral("identifier"), identifier},
        {QStringLiteral("givenName"), givenName},
        {QStringLiteral("familyName"), familyName},
        {QStringLiteral("emailAddresses"), QJsonArray::fromStringList(emailAddresses)}};
    if (!phone.isEmpty()) {
        const QJsonObject entry{{QStringLiteral("label"), QStringLiteral("_$!<Mobile>!$_")},
                                {QStringLiteral("value"), phone}};
        object.insert(QStringLiteral("phoneNumbers"), QJsonArray{entry});
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
        groupObjects.append(
            QJsonObject{{QStringLiteral("identifier"), group.identifier},
                        {QStringLiteral("name"), group.name},
                        {QStringLiteral("members"), QJsonArray::fromStringList(group.members)}});
    return jsonOf(
        {{QStringLiteral("contacts"), contacts}, {QStringLiteral("groups"), groupObjects}});
}

QByteArray messagesOnLine(const QString& line, const std::map<QString, QByteArray>& people) {
    QJsonObject settings;
    for (const auto& [phone, json] : people)
        settings.insert(phone, objectOf(json));
    return jsonOf({{QStringLiteral("line"), line}, {QStringLiteral("people"), settings}});
}

}  // namespace velmora
