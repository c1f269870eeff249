// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "intake/BalanceChain.h"

#include <algorithm>

namespace {

BalanceChain followIn(const std::vector<BalanceChain::Link>& links, bool newestFirst) {
    BalanceChain chain;
    chain.newestFirst = newestFirst;
    for (std::size_t i = 1; i < links.size(); ++i) {
        const auto& before = newestFirst ? links[i] : links[i - 1];
        const auto& after = newestFirst ? links[i - 1] : links[i];
        const Money step = after.balance - before.balance;
        ++chain.steps;
        if (step == after.amount)
            ++chain.fitting;
        else
            chain.breaks.push_back(links[i].line);
        chain.fittingSizes += step.magnitude() == after.amount.magnitude() ? 1 : 0;
    }
    return chain;
}

} // namespace

BalanceChain BalanceChain::follow(const std::vector<Link>& links, std::optional<bool> newestFirst) {
    if (newestFirst)
        return followIn(links, *newestFirst);
    const BalanceChain up = followIn(links, false);
    const BalanceChain down = followIn(links, true);
    // Without signs, a link fits in the wrong direction by chance rather than in the right one.
    const bool downIsBetter =
        down.fittingSizes != up.fittingSizes ? down.fittingSizes > up.fittingSizes : down.fitting > up.fitting;
    return downIsBetter ? down : up;
}

std::optional<bool> BalanceChain::orderOf(const std::vector<Day>& days) {
    const bool up = std::is_sorted(days.begin(), days.end());
    const bool down = std::is_sorted(days.rbegin(), days.rend());
    return up != down ? std::optional(down) : std::nullopt;
}
