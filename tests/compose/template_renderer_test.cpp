#include "compose/template_renderer.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

using namespace velmora::TemplateRenderer;

// A wrong idea of what separates would send a person two versions, or a version cut in half, and an
// empty version an empty text.
TEST(SplitVersions, SeparateAtThreeHyphensAreTrimmedAndVanishWhenEmpty) {
    const std::vector<std::pair<QString, QString>> cases = {
        {u"A\n---\nB"_s, u"A|B"_s},
        {u"A\n\t---\u00a0 \nB"_s, u"A|B"_s},
        {u"---\n\n A\n\n b \r\n---\n---\nB\n---"_s, u"A\n\n b|B"_s},
        {u"\u200bA"_s, u"\u200bA"_s},
        {u" \t\r\n\u0085\u2028\u3000"_s, {}},
        {u"---\n---\n"_s, {}}};
    for (const auto& [text, versions] : cases)
        EXPECT_EQ(splitVersions(text).join(u'|'), versions);
    for (const QString& line :
         {u"----"_s, u"- - -"_s, u"--- x"_s, u"---\r"_s, u"---\u2028"_s, u"\u200b---"_s})
        EXPECT_EQ(splitVersions(u"A\n"_s + line + u"\nB"_s).size(), 1) << line.toStdString();
}

// Another hash would give people another version after an update.
TEST(VersionIndex, IsTheKnownHashOfThePhone) {
    const quint64 whole = 0xffffffffffffffff;
    EXPECT_EQ(versionIndex(u"+15551234567"_s, whole), 0x5c7b129949cbd436);
    EXPECT_EQ(versionIndex(u"+15551234568"_s, whole), 0x5c7b1d9949cbe6e7);
    EXPECT_EQ(versionIndex(u""_s, whole), 0xcbf29ce484222325);
    EXPECT_EQ(versionIndex(u"+15551234567"_s, 3), 1U);
    EXPECT_EQ(versionIndex(u"\u00e9"_s, whole), 0xac21707b7181e01)
        << "two bytes in UTF-8, both above 127";
}

// A stray or missing space, or a placeholder left over, would be seen by everyone.
TEST(RenderText, PutsInNameAndNote) {
    struct Case {
        QString version, name, note, text;
    };
    const QStringList builtIn = splitVersions(defaultTemplate());
    for (const Case& each : std::vector<Case>{
             {u"Hi?{custom_note}"_s, {}, u" \nthanks for it \r\n"_s, u"Hi? thanks for it"_s},
             {u"Hi?{custom_note}"_s, {}, u" \t "_s, u"Hi?"_s},
             {u"a {custom_note} b"_s, {}, {}, u"a  b"_s},
             {u"Hey {first_name}, {first_name}"_s, {}, {}, u"Hey ,"_s},
             {u"{first_name}!"_s, u" Ann "_s, {}, u"Ann !"_s},
             {u"{First_name} { first_name}"_s, u"Ann"_s, {}, u"{First_name} { first_name}"_s},
             {u"{first_name}"_s, u"{custom_note}"_s, u"x {first_name}"_s, u"x {first_name}"_s},
             {builtIn.join(u'|'), u"Ann"_s, u"Bye!"_s,
              u"Hey Ann, it's Robin. Something special is coming up and I'm only telling a few "
              "people. Want in? Bye!|Ann! Robin here. I've got a private thing coming up and you "
              "were one of the first people I thought of. Interested? Bye!"_s}})
        EXPECT_EQ(renderText(each.version, each.name, each.note), each.text);
}

// A template that all get alike, checked as if it told people apart, or the other way round.
TEST(IsPersonalised, WhenTextsMayDiffer) {
    for (const QString& text : {u"{first_name}"_s, u"{custom_note}"_s, u"A\n---\nB"_s})
        EXPECT_TRUE(isPersonalised(text)) << text.toStdString();
    EXPECT_FALSE(isPersonalised(u"A {name}\n---\n"_s));
}
