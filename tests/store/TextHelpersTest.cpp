#include "store/TextHelpers.h"

#include <gtest/gtest.h>

namespace purrlodge {
namespace {

TEST(TextHelpers, SeparatorsAndSubstrings)
{
    EXPECT_EQ(textBefore("07700 900123::work", "::"), "07700 900123");
    EXPECT_EQ(textBefore("no separator", "::"), "no separator");
    EXPECT_EQ(textAfter("a\tb\tc", "\t"), "b\tc");
    EXPECT_EQ(textAfter("abc", "\t"), "");
    EXPECT_EQ(textAfterLast("a\tb\tc", "\t"), "c");
    EXPECT_EQ(substringIndex("Tiddles", "dd"), 2);
    EXPECT_EQ(substringIndex("Tiddles", "x"), -1);
    EXPECT_EQ(substring1("Tiddles", 1, 3), "Tid");
    EXPECT_EQ(substring1("Tiddles", 6, 10), "es");
    EXPECT_EQ(substring1("Tiddles", 0, 2), "");
    EXPECT_EQ(trim("  Mrs \t"), "Mrs");
    EXPECT_EQ(reversed("123"), "321");
}

TEST(TextHelpers, CaseChangesKnowTheAccentedLetters)
{
    EXPECT_EQ(toUpper("caf\xE9 \xFF"), "CAF\xC9 \x9F");
    EXPECT_EQ(toLower("\xC9LAN \xD7"), "\xE9lan \xD7") << "the multiplication sign is no letter";
    EXPECT_TRUE(equalsIgnoringCase("SmithAnn", "SMITHANN"));
    EXPECT_FALSE(equalsIgnoringCase("SmithAnn", "SmithAn"));
}

TEST(TextHelpers, LetterDigitAndCharacterSetScans)
{
    EXPECT_FALSE(hasLetterOrDigit(" .-- "));
    EXPECT_FALSE(hasLetterOrDigit("\xE9"));
    EXPECT_TRUE(hasLetterOrDigit("--7"));
    EXPECT_EQ(firstNotInSet("Ann-Marie", "abcdefghijklmnopqrstuvwxyzAMN"), 3);
    EXPECT_EQ(firstInSet("Ann", "xyz"), -1);
    EXPECT_TRUE(onlyCharactersOf("O'Neil", "'OeilN"));
}

TEST(TextHelpers, NumbersReadAsTheCLibraryReadsThem)
{
    EXPECT_EQ(leadingInt("  42abc"), 42);
    EXPECT_EQ(leadingInt("-7"), -7);
    EXPECT_EQ(leadingInt("abc"), 0);
    EXPECT_EQ(leadingInt("99999999999"), 2147483647);
    EXPECT_DOUBLE_EQ(leadingDouble("12.50 pounds"), 12.5);
    EXPECT_DOUBLE_EQ(leadingDouble(" -.5"), -0.5);
    EXPECT_DOUBLE_EQ(leadingDouble("1,50"), 1.0) << "a comma is never a decimal point";
    EXPECT_DOUBLE_EQ(leadingDouble(""), 0.0);
    EXPECT_DOUBLE_EQ(leadingDouble("+-3"), 0.0);
}

} // namespace
} // namespace purrlodge
