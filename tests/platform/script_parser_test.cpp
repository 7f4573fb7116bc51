#include "platform/rehearsal/script_parser.h"

#include <gtest/gtest.h>

#include "sending/message_sender.h"

using namespace Qt::StringLiterals;

namespace velmora {
namespace {

// Catches a script that a Mac would refuse, or would take for something else, and that runs here.
TEST(ScriptParser, RefusesWhatIsNotExactlyTheScript) {
    const QString script = messageScript(u"+12125550123"_s, Service::iMessage, u"Hi"_s);
    struct Case {
        QString part;
        QString replacement;
        int line;
    };
    for (const auto& [part, replacement, line] : {
             Case{script, u""_s, 1},
             Case{u"\"Messages\""_s, u"\"Mail\""_s, 1},
             Case{u"    set targetAccount to 1st account whose service type = iMessage\n"_s, {}, 2},
             Case{u"iMessage"_s, u"\"iMessage\""_s, 2},
             Case{u"iMessage"_s, u"imessage"_s, 2},
             Case{u"    set targetP"_s, u"\tset targetP"_s, 3},
             Case{u"\"+12125550123\""_s, u"+12125550123"_s, 3},
             Case{u"    send \"Hi\" to targetParticipant\n"_s, {}, 4},
             Case{u"\"Hi\""_s, u"\"Hi"_s, 4},
             Case{u"\"Hi\""_s, u"\"\\n\""_s, 4},
             Case{u"\"Hi\""_s, u"\"Hi\" & \"there\""_s, 4},
             Case{u"\"Hi\""_s, u"\"\" to targetParticipant\ndo shell script \"ls\""_s, 5},
             Case{u"Hi"_s, u"a\nb\" x"_s, 5},
             Case{u"end tell"_s, u"end tell\n"_s, 5},
             Case{u"end tell"_s, u"end tell\ndo shell script \"ls\""_s, 5},
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
