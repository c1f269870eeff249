// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "cli/Progress.h"

#include <algorithm>
#include <cstdio>
#include <utility>

#include "cli/TextWidth.h"

namespace {

using namespace std::chrono_literals;
constexpr auto kBeforeFirst = 300ms; // what is done by then needs no bar
constexpr auto kBetween = 100ms;
constexpr std::size_t kBar = 30;
constexpr std::size_t kMostName = 30;

} // namespace

Progress::Progress(bool visible, const std::string& name, std::size_t total)
    : m_visible(visible && total > 0), m_name(TextWidth::fitted(name, kMostName)), m_total(total),
      m_next(Clock::now() + kBeforeFirst) {}

Progress::~Progress() {
    if (m_drawn)
        std::fputs("\r\033[K", stderr);
}

void Progress::look() {
    const Clock::time_point now = Clock::now();
    if (now < m_next)
        return;
    m_next = now + kBetween;
    m_drawn = true;
    draw();
}

void Progress::draw() const {
    const std::size_t done = std::min(m_done, m_total);
    const std::size_t filled = kBar * done / m_total;
    const std::string bar = std::string(filled, '#') + std::string(kBar - filled, '.');
    std::fprintf(stderr, "\r\033[K[%s] %3zu %% %s", bar.c_str(), 100 * done / m_total, m_name.c_str());
    std::fflush(stderr);
}
