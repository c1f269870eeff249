// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "store/BusyWait.h"

#include <unistd.h>

#include <cstdint>
#include <thread>

int BusyWait::tryAgain(void* self, int tries) {
    auto& wait = *static_cast<BusyWait*>(self);
    const auto now = std::chrono::steady_clock::now();
    if (tries == 0)
        wait.m_giveUp = now + wait.m_patience;
    if (now >= wait.m_giveUp)
        return 0;
    // Multiplied by odd numbers, so that processes whose numbers follow each other do not keep step.
    constexpr std::uint32_t kShortest = 500;
    constexpr std::uint32_t kSpread = 4000;
    const std::uint32_t mixed =
        (static_cast<std::uint32_t>(getpid()) * 2654435761U) ^ (static_cast<std::uint32_t>(tries) * 2246822519U);
    std::this_thread::sleep_for(std::chrono::microseconds(kShortest + (mixed >> 8U) % kSpread));
    return 1;
}
