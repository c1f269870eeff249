// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "intake/BalanceChain.h"

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

BalanceChain BalanceChain::follow(const std::vector<Link>& links) {
    const BalanceChain up = followIn(links, false);
    const BalanceChain down = followIn(links, true);
    const bool downIsBetter =
        down.fitting != up.fitting ? down.fitting > up.fitting : down.fittingSizes > up.fittingSizes;
    return downIsBetter ? down : up;
}
