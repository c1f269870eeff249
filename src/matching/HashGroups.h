// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

/// Items, numbered from 0, in groups of equal hashes. An item of a group that is
/// no longer wanted is passed over once and not met again, so that many equal items cost no more than many different
/// ones.
class HashGroups {
public:
    void add(std::uint64_t hash, std::size_t item) { m_entries.push_back({hash, item, 0}); }
    /// To be called when all are added.
    void sort();

    /// The first item of the group, in the order in which they were added, for which
    /// `accepts` holds, or `kNone`. Items for which `isGone` holds are passed over for good.
    /// Looks at no more than `most` items that are there.
    template <class IsGone, class Accepts>
    std::size_t find(std::uint64_t hash, std::size_t most, IsGone isGone, Accepts accepts) {
        std::size_t at = firstOf(hash);
        if (at == m_entries.size())
            return kNone;
        std::size_t& gone = m_entries[at].gone;
        bool atHead = true;
        for (at += gone; at < m_entries.size() && m_entries[at].hash == hash && most > 0; ++at) {
            if (isGone(m_entries[at].item)) {
                gone += atHead ? 1 : 0;
                continue;
            }
            atHead = false;
            --most;
            if (accepts(m_entries[at].item))
                return m_entries[at].item;
        }
        return kNone;
    }

    static constexpr std::size_t kNone = static_cast<std::size_t>(-1);

private:
    struct Entry {
        std::uint64_t hash;
        std::size_t item;
        std::size_t gone; ///< in a group's first entry: how many at its head are gone
    };

    std::size_t firstOf(std::uint64_t hash) const;

    std::vector<Entry> m_entries;
};
