#include "platform/rehearsal/script_parser.h"

#include <gtest/gtest.h>

#include <random>

#include "sending/message_sender.h"

using namespace Qt::Literals::StringLiterals;

namespace velmora {
namespace {

const QString phone = QStringLiteral("+12125550123");

// Catches a difference between the script that is sent and the script that is understood.
TEST(ScriptParser, GivesBackEveryTextThatTheSenderPutsIntoAScript) {
    for (const QString& text :
         {u""_s, u"Hi Ann"_s, u"one\ntwo\r\n\tthree\n"_s, u"\"quoted\" \\ \\\" \\\\"_s,
          u"ends in a backslash \\"_s, u"שלום 你好 👩‍👩‍👧"_s,
          u"\" to targetParticipant\nend tell\ndo shell script \"ls"_s}) {
        for (const Service service : {Service::iMessage, Service::sms}) {
            const auto parsed = parseMessageScript(messageScript(phone, service, text));
            ASSERT_TRUE(parsed.has_value()) << parsed.error().description.toStdString();
            EXPECT_EQ(parsed->text, text);
            EXPECT_EQ(parsed->phone, phone);
            EXPECT_EQ(parsed->service, service);
        }
    }
}

// Catches escaping that lets some text end its quotation: the literal ends where the text does.
TEST(ScriptParser, NoTextEndsItsQuotation) {
    std::mt19937 random(20250314);  // NOLINT(bugprone-random-generator-seed): the same every time
    const QString alphabet = u"\\\"n\n a"_s;
    for (int round = 0; round < 2000; ++round) {
        QString text;
        for (unsigned length = random() % 12; length > 0; --length)
            text += alphabet[static_cast<qsizetype>(random()) % alphabet.size()];
        const QString quoted = u'"' + escapedForScript(text) + u'"';
        const auto literal = readStringLiteral(quoted, 0);
        ASSERT_TRUE(literal.has_value()) << quoted.toStdString();
        ASSERT_EQ(literal->value, text);
        ASSERT_EQ(literal->end, quoted.size());
    }
}

TEST(ScriptParser, ReadsOneLiteralAndRefusesWhatIsNone) {
    const auto literal = readStringLiteral(u"send \"a\\\"b\\\\\" to \"c\"", 5);
    ASSERT_TRUE(literal.has_value());
    EXPECT_EQ(literal->value, u"a\"b\\"_s);
    EXPECT_EQ(literal->end, 13);
    for (const QString& source : {u""_s, u"a"_s, u"\""_s, u"\"a"_s, u"\"a\\\""_s, u"\"\\n\""_s})
        EXPECT_FALSE(readStringLiteral(source, 0).has_value()) << source.toStdString();
}

// Catches a script that a Mac would refuse, or would take for something else, and that runs here.
TEST(ScriptParser, RefusesWhatIsNotExactlyTheScript) {
    const QString script = messageScript(phone, Service::iMessage, u"Hi"_s);
    const auto changed = [&script](const QString& from, const QString& to) {
        EXPECT_TRUE(script.contains(from));
        return QString(script).replace(from, to);
    };
    struct Case {
        QString source;
        int line;
    };
    for (const auto& [source, line] : {
             Case{u""_s, 1},
             Case{changed(u"\"Messages\""_s, u"\"Mail\""_s), 1},
             Case{changed(u"    set targetAccount to 1st account whose service type = iMessage\n"_s,
                          {}),
                  2},
             Case{changed(u"iMessage"_s, u"\"iMessage\""_s), 2},
             Case{changed(u"iMessage"_s, u"imessage"_s), 2},
             Case{changed(u"    set targetP"_s, u"\tset targetP"_s), 3},
             Case{changed(u"\"+12125550123\""_s, u"+12125550123"_s), 3},
             Case{changed(u"    send \"Hi\" to targetParticipant\n"_s, {}), 4},
             Case{changed(u"\"Hi\""_s, u"\"Hi\" & \"there\""_s), 4},
             Case{changed(u"\"Hi\""_s, u"\"\" to targetParticipant\ndo shell script \"ls\""_s), 5},
             Case{changed(u"Hi"_s, u"a\nb\" x"_s), 5},
             Case{script + u"\n"_s, 5},
             Case{script + u"\ndo shell script \"ls\""_s, 5},
         }) {
        const auto parsed = parseMessageScript(source);
        ASSERT_FALSE(parsed.has_value()) << source.toStdString();
        EXPECT_EQ(parsed.error().description,
                  u"Messages got an error: Can't understand line %1 of the script."_s.arg(line))
            << source.toStdString();
    }
}

}  // namespace
}  // namespace velmora
