#include "app/BackupAlert.h"

#include <climits>
#include <gtest/gtest.h>

#include "support/FakePorts.h"

namespace purrlodge {
namespace {

// LastBkDate is read with strtoll, so a damaged setting holds any 64-bit number.
TEST(BackupAlertTest, AnyStoredBackupDateIsComparedWithNow)
{
    testing::FakeClock clock;
    clock.setUtc(2009, 5, 23, 9, 5);
    const std::int64_t now = clock.now();
    EXPECT_FALSE(backupAlertFor(now - backupAlertAfterSeconds + 1, true, now, clock));
    EXPECT_EQ(backupAlertFor(now - backupAlertAfterSeconds, true, now, clock)->text,
              "You have not backed up your Purrlodge Data since\n 09:04 on 23/04/09");
    EXPECT_TRUE(backupAlertFor(LLONG_MIN, true, now, clock)) << "long ago";
    EXPECT_FALSE(backupAlertFor(LLONG_MAX, true, now, clock)) << "in the future";
}

} // namespace
} // namespace purrlodge
