#include "sending/message_sender.h"

#include <gtest/gtest.h>

#include <QRandomGenerator>

#include "platform/rehearsal/script_parser.h"

namespace velmora {
namespace {

using namespace Qt::StringLiterals;
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

QString generatedText(QRandomGenerator& random) {
    static const QStringList pieces = {
        u"\""_s,         u"\\"_s,     u"\\\""_s,     u"\n"_s,     u"\r\n"_s,    u"\t"_s,
        u"\U0001F389"_s, u"\u00e9"_s, u"end tell"_s, u"\" to "_s, u"send \""_s, u"tell "_s,
        u"& return"_s,   u"-- "_s,    u"(*"_s,       u"|"_s,      u"%1"_s,      u"\u2028"_s,
    };
    QString text;
    for (quint32 left = random.bounded(12U); left > 0; --left)
        text += pieces.at(random.bounded(static_cast<int>(pieces.size())));
    return text;
}

// Catches a text that breaks out of its quotation marks or arrives as another one.
TEST(MessageSender, EveryTextIsReadBackAsItself) {
    QRandomGenerator random(20250314);
    for (int i = 0; i < 4000; ++i) {
        const QString text = generatedText(random);
        const QString phone = generatedText(random);
        const Service service = i % 2 == 0 ? Service::iMessage : Service::sms;
        const QString literal = u'"' + escapedForScript(text) + u'"';
        const auto read = readStringLiteral(literal, 0);
        ASSERT_TRUE(read && read->end == literal.size()) << qPrintable(text);
        const auto parsed = parseMessageScript(messageScript(phone, service, text));
        ASSERT_TRUE(parsed) << qPrintable(text);
        EXPECT_EQ(parsed->phone, phone);
        EXPECT_EQ(parsed->service, service);
        EXPECT_EQ(parsed->text, text);
    }
}

}  // namespace
}  // namespace velmora
