// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <vector>

/// What a format could not keep of a record.
enum class Loss {
    undated,       ///< the record is not there: the format demands a date
    dayOutside,    ///< the record is not there: its day lies before what the format counts
    noAmount,      ///< the record has none; 0 stands there
    amountRounded, ///< it has more decimals than the format takes
    textChanged,   ///< characters that mean something to the format, or blanks that it drops
    textCut,       ///< longer than a line of the format
    fieldDropped,  ///< the format has no place for it
    count
};

/// The records that lost something, by what they lost.
class Losses {
public:
    using Ids = std::vector<std::optional<std::int32_t>>;

    /// Counts a record once for each loss, if it is told of everything before the next one.
    void note(Loss loss, std::optional<std::int32_t> uniqueId) {
        Ids& ids = m_ids[static_cast<std::size_t>(loss)];
        if (ids.empty() || ids.back() != uniqueId || !uniqueId)
            ids.push_back(uniqueId);
    }
    /// The records' "UniqueID", in the order of the output.
    const Ids& of(Loss loss) const { return m_ids[static_cast<std::size_t>(loss)]; }

private:
    std::array<Ids, static_cast<std::size_t>(Loss::count)> m_ids;
};
