#include "platform/rehearsal/messages_settings.h"

#include "platform/rehearsal/json_file.h"

namespace velmora {

namespace {

void apply(JsonFile& file, const QJsonObject& settings, SendBehaviour& behaviour) {
    if (auto line = file.optionalText(settings, QStringLiteral("line")))
        behaviour.line = *line;
    file.readSeconds(settings, QStringLiteral("recordAfter"), behaviour.recordAfter);
    file.readSeconds(settings, QStringLiteral("sentAfter"), behaviour.sentAfter);
    file.readSeconds(settings, QStringLiteral("deliveredAfter"), behaviour.deliveredAfter);
    file.readInteger(settings, QStringLiteral("error"), behaviour.error);
    if (auto error = file.optionalText(settings, QStringLiteral("scriptError")))
        behaviour.scriptError = *error;
}

}  // namespace

QString messagesSettingsPath(const QString& home) {
    return home + QStringLiteral("/Library/Messages/messages.json");
}

std::expected<SendBehaviour, FileError> readSendBehaviour(const QString& path, const QString& phone,
                                                          Service service) {
    auto file = JsonFile::read(path);
    if (!file)
        return std::unexpected(file.error());
    SendBehaviour behaviour;
    const QJsonObject people = file->object(file->root(), QStringLiteral("people"));
    const QJsonObject person = file->object(people, phone);
    apply(*file, file->root(), behaviour);
    apply(*file, person, behaviour);
    apply(*file, file->object(person, serviceName(service)), behaviour);
    if (file->error())
        return std::unexpected(*file->error());
    return behaviour;
}

QVariant readAliases(const QString& path) {
    const auto file = JsonFile::read(path);
    return file ? file->root().value(QStringLiteral("aliases")).toVariant() : QVariant();
}

}  // namespace velmora
