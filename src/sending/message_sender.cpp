#include "sending/message_sender.h"

using namespace Qt::StringLiterals;

namespace velmora {

namespace {

SendError sendError(const ScriptResult& result) {
    if (result.outcome == ScriptResult::Outcome::notPrepared)
        return {u"Couldn't prepare the Messages script."_s};
    return {result.message.value_or(u"Messages reported an error."_s)};
}

}  // namespace

QString escapedForScript(const QString& text) {
    // Backslashes first: those that the second step adds must stay single.
    QString escaped = text;
    escaped.replace(u"\\"_s, u"\\\\"_s);
    escaped.replace(u"\""_s, u"\\\""_s);
    return escaped;
}

QString messageScript(const QString& phone, Service service, const QString& text) {
    return u"tell application \"Messages\"\n"_s +
           u"    set targetAccount to 1st account whose service type = "_s + serviceName(service) +
           u"\n    set targetParticipant to participant \""_s + escapedForScript(phone) +
           u"\" of targetAccount\n    send \""_s + escapedForScript(text) +
           u"\" to targetParticipant\nend tell"_s;
}

std::expected<void, SendError> MessageSender::send(const QString& phone, Service service,
                                                   const QString& text) {
    const ScriptResult result = runner_.run(messageScript(phone, service, text));
    if (result.outcome == ScriptResult::Outcome::success)
        return {};
    return std::unexpected(sendError(result));
}

}  // namespace velmora
