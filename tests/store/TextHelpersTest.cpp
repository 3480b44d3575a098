#include "store/TextHelpers.h"

#include <gtest/gtest.h>

namespace purrlodge {
namespace {

TEST(TextHelpers, PartsAtTheirEdgesLettersOfWindows1252AndNumbers)
{
    EXPECT_EQ(textBefore("0770 900::work::x", "::") + "|" + textBefore("none", "::"),
              "0770 900|none");
    EXPECT_EQ(textAfter("a\tb\tc", "\t") + "|" + textAfter("abc", "\t"), "b\tc|");
    EXPECT_EQ(textAfterLast("a\tb\tc", "\t") + "|" + textAfterLast("abc", "\t"), "c|abc");
    EXPECT_TRUE(contains("Tiddles", "dd") && contains("Tiddles", ""));
    EXPECT_FALSE(contains("Tiddles", "DD") || contains("", "a"));
    EXPECT_EQ(substringIndex("Tiddles", "x"), -1);
    EXPECT_EQ(substring1("Tiddles", 1, 3) + "|" + substring1("Tiddles", 6, 10), "Tid|es");
    EXPECT_EQ(substring1("Tiddles", 0, 2) + substring1("Tiddles", 8, 1), "");
    EXPECT_EQ(toUpper("caf\xE9 \xFF"), "CAF\xC9 \x9F");
    EXPECT_EQ(toLower("\xC9LAN \xD7"), "\xE9lan \xD7") << "the multiplication sign is no letter";
    EXPECT_TRUE(hasLetterOrDigit("--7") && !hasLetterOrDigit(" .-- ") && !hasLetterOrDigit("\xE9"));
    EXPECT_EQ(firstNotInSet("Ann-Marie", "AMNaeinr"), 3);
    EXPECT_EQ(firstInSet("Ann", "xyz"), -1);
    EXPECT_TRUE(onlyCharactersOf("O'Neil", "'OeilN") && onlyCharactersOf("", "x"));
    // Numbers are read as the C library reads them.
    EXPECT_EQ(leadingInt("  -42abc"), -42);
    EXPECT_EQ(leadingInt("abc"), 0);
    EXPECT_EQ(leadingInt("99999999999"), 2147483647);
    EXPECT_DOUBLE_EQ(leadingDouble("12.50 pounds"), 12.5);
    EXPECT_DOUBLE_EQ(leadingDouble(" -.5"), -0.5);
    EXPECT_DOUBLE_EQ(leadingDouble("1,50"), 1.0) << "a comma is never a decimal point";
    EXPECT_DOUBLE_EQ(leadingDouble("+-3"), 0.0);
}

} // namespace
} // namespace purrlodge
