// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "matching/HashGroups.h"

#include <algorithm>
#include <tuple>

void HashGroups::sort() {
    std::sort(m_entries.begin(), m_entries.end(),
              [](const Entry& a, const Entry& b) { return std::tie(a.hash, a.item) < std::tie(b.hash, b.item); });
}

std::size_t HashGroups::firstOf(std::uint64_t hash) const {
    const auto first = std::lower_bound(m_entries.begin(), m_entries.end(), hash,
                                        [](const Entry& entry, std::uint64_t wanted) { return entry.hash < wanted; });
    return first != m_entries.end() && first->hash == hash ? static_cast<std::size_t>(first - m_entries.begin())
                                                           : m_entries.size();
}
