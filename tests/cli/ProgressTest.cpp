// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "cli/Progress.h"

#include <thread>

#include <gmock/gmock.h>

namespace {

using namespace std::chrono_literals;

std::string shownBy(bool visible, std::chrono::milliseconds before, std::size_t steps) {
    testing::internal::CaptureStderr();
    {
        Progress progress(visible, "a.csv", 1024);
        std::this_thread::sleep_for(before);
        for (std::size_t step = 0; step < steps; ++step)
            progress.step();
    }
    return testing::internal::GetCapturedStderr();
}

TEST(Progress, BarAppearsForLongWorkAndGoesAway) {
    const std::string shown = shownBy(true, 350ms, 512);
    EXPECT_THAT(shown, testing::HasSubstr("[#######.......................]  25 % a.csv"));
    EXPECT_THAT(shown, testing::EndsWith("\r\033[K"));
}

TEST(Progress, ShortWorkHasNone) { EXPECT_EQ(shownBy(true, 0ms, 512), ""); }

TEST(Progress, NobodySeesItOffATerminal) { EXPECT_EQ(shownBy(false, 350ms, 512), ""); }

TEST(Progress, MoreStepsThanExpectedStayAtTheEnd) {
    testing::internal::CaptureStderr();
    {
        Progress progress(true, "a.csv", 1);
        std::this_thread::sleep_for(350ms);
        for (int step = 0; step < 256; ++step)
            progress.step();
    }
    EXPECT_THAT(testing::internal::GetCapturedStderr(), testing::HasSubstr("100 %"));
}

} // namespace
