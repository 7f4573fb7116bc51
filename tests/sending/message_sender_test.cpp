#include "sending/message_sender.h"

#include <gtest/gtest.h>

#include "platform/rehearsal/script_parser.h"

using namespace Qt::StringLiterals;

namespace velmora {
namespace {

using Outcome = ScriptResult::Outcome;

struct AnsweringScripts final : ScriptRunner {
    [[nodiscard]] ScriptResult run(const QString&) override { return answer; }

    ScriptResult answer;
};

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
    AnsweringScripts scripts;
    MessageSender sender(scripts);
    const std::vector<std::pair<ScriptResult, QString>> answers = {
        {{Outcome::success, {}}, u"sent"_s},
        {{Outcome::notPrepared, {}}, u"Couldn't prepare the Messages script."_s},
        {scriptFailure({}), u"Messages reported an error."_s},
        {scriptFailure(7), u"Messages reported an error."_s},
        {scriptFailure(u"Can't get participant."_s), u"Can't get participant."_s},
    };
    for (const auto& [answer, description] : answers) {
        scripts.answer = answer;
        const auto sent = sender.send(u"+15550100123"_s, Service::iMessage, u"Hello"_s);
        EXPECT_EQ(sent ? u"sent"_s : sent.error().description, description);
    }
}

// Catches a script that a Mac would refuse, or would take for something else, and that runs here.
TEST(ScriptParser, RefusesWhatIsNotExactlyTheScript) {
    const QString script = messageScript(u"+12125550123"_s, Service::iMessage, u"Hi"_s);
    using Cases = std::vector<std::tuple<QString, QString, int>>;
    for (const auto& [part, replacement, line] : Cases{
             {script, u""_s, 1},
             {u"\"Messages\""_s, u"\"Mail\""_s, 1},
             {u"    set targetAccount to 1st account whose service type = iMessage\n"_s, {}, 2},
             {u"iMessage"_s, u"\"iMessage\""_s, 2},
             {u"iMessage"_s, u"imessage"_s, 2},
             {u"    set targetP"_s, u"\tset targetP"_s, 3},
             {u"\"+12125550123\""_s, u"+12125550123"_s, 3},
             {u"    send \"Hi\" to targetParticipant\n"_s, {}, 4},
             {u"\"Hi\""_s, u"\"Hi"_s, 4},
             {u"\"Hi\""_s, u"\"\\n\""_s, 4},
             {u"\"Hi\""_s, u"\"Hi\" & \"there\""_s, 4},
             {u"\"Hi\""_s, u"\"\" to targetParticipant\ndo shell script \"ls\""_s, 5},
             {u"Hi"_s, u"a\nb\" x"_s, 5},
             {u"end tell"_s, u"end tell\n"_s, 5},
             {u"end tell"_s, u"end tell\ndo shell script \"ls\""_s, 5},
         }) {
        ASSERT_TRUE(script.contains(part));
        const QString source = QString(script).replace(part, replacement);
        const auto parsed = parseMessageScript(source);
        ASSERT_FALSE(parsed.has_value()) << source.toStdString();
        EXPECT_EQ(parsed.error().description,
                  u"Messages got an error: Can't understand line %1 of the script."_s.arg(line))
            << source.toStdString();
    }
}

}  // namespace
}  // namespace velmora
