#include "core/phone.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

using namespace velmora;

// Cutting any other number into American groups would show a number that does not exist.
TEST(DisplayPhone, GroupsOnlyPlusOneAndTenCharacters) {
    EXPECT_EQ(displayPhone(u"+15551234567"_s), u"(555) 123-4567"_s);
    // Characters as a person counts them: a digit with its accent is one.
    EXPECT_EQ(displayPhone(u"+15551234\u030167"_s + u"8"_s), u"(555) 123-4\u0301678"_s);
    for (const QString& other :
         {u"+447700900123"_s, u"+1555123456"_s, u"5551234567"_s, u""_s, u"+1"_s,
          u"+1\u03015551234567"_s, u"+155512345678"_s, u"+4 5551234567"_s})
        EXPECT_EQ(displayPhone(other), other);
}

// The same person typed in two ways would be texted twice, or a wrong number be texted at all.
TEST(NormalizePhone, GivesEveryNumberItsOneForm) {
    for (const QString& typed :
         {u"(555) 123-4567=+15551234567"_s, u"1 555 123 4567=+15551234567"_s,
          u"\u2029\u0085 +44 7700 900123\n=+447700900123"_s, u"+12345678=+12345678"_s,
          u"+123456789012345=+123456789012345"_s, u"(+44) 7700 9001=+14477009001"_s,
          u" \u2066\u202a \u061c+65 9123 4567\u202c=+6591234567"_s})
        EXPECT_EQ(normalizePhone(typed.section(u'=', 0, 0)), typed.section(u'=', 1));
    for (const QString& useless :
         {u""_s, u"555-1234"_s, u"2 555 123 4567"_s, u"+1234567"_s, u"+1234567890123456"_s,
          u"\u200b+44 7700 900123"_s, u"\u0665\u0665\u0665 123-4567"_s, u"123456789012"_s})
        EXPECT_EQ(normalizePhone(useless), std::nullopt) << useless.toStdString();
}
