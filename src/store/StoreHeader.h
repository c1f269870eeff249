// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

/// What a file is, judged by its first bytes and before SQLite is let near it,
/// which would roll back or merge what other programs left beside their files.
struct StoreHeader {
    enum class Kind {
        empty,   ///< nothing yet: a store can be made of it
        ours,    ///< says that it is a store, of whatever version
        foreign, ///< anything else
        cutOff,  ///< begins like a database and is too short for one
    };
    /// As many bytes as the judgement takes.
    static constexpr std::size_t kSize = 108;

    Kind kind = Kind::empty;
    std::int64_t version = 0;

    /// `head`: the first `kSize` bytes, fewer only when the file is shorter.
    static StoreHeader judge(std::string_view head, bool hasJournal);
    /// Whether a file with that head has a write-ahead log, in which its last pages may still be.
    static bool usesWriteAheadLog(std::string_view head);
};
