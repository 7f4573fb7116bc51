#include "platform/rehearsal/messages_settings.h"

#include "platform/rehearsal/json_file.h"

using namespace Qt::StringLiterals;

namespace velmora {

namespace {

void apply(JsonFile& file, const QJsonObject& settings, SendBehaviour& behaviour) {
    if (auto line = file.optionalText(settings, u"line"_s))
        behaviour.line = *line;
    file.readSeconds(settings, u"recordAfter"_s, behaviour.recordAfter);
    file.readSeconds(settings, u"sentAfter"_s, behaviour.sentAfter);
    file.readSeconds(settings, u"deliveredAfter"_s, behaviour.deliveredAfter);
    file.readInteger(settings, u"error"_s, behaviour.error);
    if (auto error = file.optionalText(settings, u"scriptError"_s))
        behaviour.scriptError = *error;
}

}  // namespace

QString messagesSettingsPath(const QString& home) {
    return home + u"/Library/Messages/messages.json"_s;
}

std::expected<SendBehaviour, FileError> readSendBehaviour(const QString& path, const QString& phone,
                                                          Service service) {
    auto file = JsonFile::read(path);
    if (!file)
        return std::unexpected(file.error());
    SendBehaviour behaviour;
    const QJsonObject people = file->object(file->root(), u"people"_s);
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
    return file ? file->root().value(u"aliases"_s).toVariant() : QVariant();
}

}  // namespace velmora
