// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cstdlib>

/// How much is tried: in the ordinary tests a part, in a campaign (scripts/reliability.sh) all of it.
namespace Campaign {

inline bool isFull() {
    const char* wish = std::getenv("IMPORT_MODULE_CAMPAIGN");
    return wish != nullptr && *wish != '\0';
}

template <typename Number>
Number choose(Number ordinary, Number full) {
    return isFull() ? full : ordinary;
}

} // namespace Campaign
