// SPDX-License-Identifier: GPL-3.0-or-later
#include "documents/recovery_schedule.h"

#include <gtest/gtest.h>

namespace kav {

using std::chrono::milliseconds;

TEST(RecoverySchedule, WaitsForAPauseInTyping) {
    EXPECT_EQ(copyDelay(milliseconds(0)), kTypingPause);
    EXPECT_EQ(copyDelay(kOldestUnwritten - kTypingPause), kTypingPause);
}

TEST(RecoverySchedule, DoesNotWaitForeverForIt) {
    EXPECT_EQ(copyDelay(kOldestUnwritten - milliseconds(1)), milliseconds(1));
    EXPECT_EQ(copyDelay(kOldestUnwritten), milliseconds(0));
    EXPECT_EQ(copyDelay(kOldestUnwritten * 2), milliseconds(0));
}

}  // namespace kav
