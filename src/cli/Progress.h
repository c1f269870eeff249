// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <cstddef>
#include <string>

/// A bar on standard error for work that takes long enough to be watched. Costs
/// next to nothing where nobody sees it.
class Progress {
public:
    /// `total` steps, `name` (printable) for whom they are done.
    Progress(bool visible, const std::string& name, std::size_t total);
    ~Progress();
    Progress(const Progress&) = delete;
    Progress& operator=(const Progress&) = delete;

    void step() {
        if (m_visible && (++m_done & kStepsBetweenLooks) == 0)
            look();
    }

private:
    using Clock = std::chrono::steady_clock;
    static constexpr std::size_t kStepsBetweenLooks = 0xFF;

    void look();
    void draw() const;

    bool m_visible;
    bool m_drawn = false;
    std::string m_name;
    std::size_t m_total;
    std::size_t m_done = 0;
    Clock::time_point m_next;
};
