#include "sending/message_sender.h"

#include <gtest/gtest.h>

#include "platform/rehearsal/script_parser.h"

using namespace Qt::StringLiterals;

using namespace velmora;

// Catches a changed word, indent or line end, and escapes made in the wrong order.
TEST(MessageSender, WritesTheScriptThatMessagesKnows) {
    EXPECT_EQ(messageScript(u"+15550100123"_s, Service::sms, u"He said \\\"hi\\\"\nBye"_s),
              u"tell application \"Messages\"\n"
              u"    set targetAccount to 1st account whose service type = SMS\n"
              u"    set targetParticipant to participant \"+15550100123\" of targetAccount\n"
              u"    send \"He said \\\\\\\"hi\\\\\\\"\nBye\" to targetParticipant\n"
              u"end tell"_s);
}

// Catches an error taken for a success, or told in other words than the platform's.
TEST(MessageSender, TellsWhyATextCouldNotBeHandedOver) {
    struct AnsweringScripts final : ScriptRunner {
        [[nodiscard]] ScriptResult run(const QString&) override { return answer; }
        ScriptResult answer;
    } scripts;
    MessageSender sender(scripts);
    using Outcome = ScriptResult::Outcome;
    const std::vector<std::pair<ScriptResult, QString>> answers = {
        {{Outcome::success, {}}, u"sent"_s},
        {{Outcome::notPrepared, {}}, u"Couldn't prepare the Messages script."_s},
        {scriptFailure(7), u"Messages reported an error."_s},
        {scriptFailure(u"Can't get participant."_s), u"Can't get participant."_s}};
    for (const auto& [answer, description] : answers) {
        scripts.answer = answer;
        const auto sent = sender.send(u"+15550100123"_s, Service::iMessage, u"Hello"_s);
        EXPECT_EQ(sent ? u"sent"_s : sent.error().description, description);
    }
}

// Catches a place that is named wrongly; what is refused is judged by tests/fuzz.
TEST(ScriptParser, NamesTheLineThatItCannotUnderstand) {
    QStringList lines = messageScript(u"+12125550123"_s, Service::iMessage, u"Hi"_s).split(u'\n');
    for (qsizetype line = lines.size(); line > 0; --line) {
        lines[line - 1] += u'x';
        EXPECT_EQ(parseMessageScript(lines.join(u'\n')).error().description,
                  u"Messages got an error: Can't understand line %1 of the script."_s.arg(line));
    }
}
