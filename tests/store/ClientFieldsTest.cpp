#include "store/ClientFields.h"

#include <gtest/gtest.h>

namespace purrlodge {
namespace {

TEST(ClientFields, MobileNumberBeforeItsTerminatorAndSexLetters)
{
    ClientRecord client{};
    client.mobile.set(storedMobileNumber("07700 900123"));
    EXPECT_EQ(client.mobile.str() + "|" + mobileNumberOf(client), "07700 900123::|07700 900123");
    client.mobile.set("0770::1::2");
    EXPECT_EQ(mobileNumberOf(client), "0770");

    std::string letters;
    for (int code : {-1, 0, 1, 2, 3, 4, 5})
        letters += sexLetter(code);
    EXPECT_EQ(letters, "ffMFmff");
}

} // namespace
} // namespace purrlodge
