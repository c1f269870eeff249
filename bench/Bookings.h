// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>
#include <vector>

/// Made-up bookings, the same for the same numbers on every machine.
class Bookings {
public:
    /// "0=Datum,1=Empfaenger,...": which column feeds which field, as `dmimport --columns` takes it.
    static const char* const kColumns;
    static constexpr char kDelimiter = ';';

    /// Line `number` (from 0) of the file, without line feed: Latin-1, a date,
    /// five texts, an amount. One purpose in ten needs quotes for a delimiter in
    /// it, one in ten has doubled quotes.
    static std::string line(std::uint32_t number);
    static const char* header();

    static std::string date(std::uint32_t number);   ///< dd.mm.yyyy
    static std::string amount(std::uint32_t number); ///< German notation: -1.234,56

    /// The whole file: header and `count` lines, each ended by a line feed.
    static std::string file(std::uint32_t count);

    /// A booking by its parts, Latin-1, for the other formats.
    struct Parts {
        std::string payee;
        std::string group;
        std::string kind;
        std::string purpose; ///< may hold quotes and the delimiter
        std::string posting;
    };
    static Parts parts(std::uint32_t number);
};
