// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "store/StoreHeader.h"

#include <algorithm>

#include "store/StoreMigrations.h"

namespace {

// Of SQLite's file format: the header's first bytes and the offsets of its
// fields (big-endian), then those of the first page of the schema's table.
constexpr std::string_view kMagic("SQLite format 3\0", 16);
constexpr std::size_t kHeaderSize = 100;
constexpr std::size_t kWriteVersion = 18; // 1: rollback journal
constexpr std::size_t kUserVersion = 60;
constexpr std::size_t kApplicationId = 68;
constexpr std::size_t kPageKind = 100; // 13: leaf of a table
constexpr std::size_t kCellCount = 103;

std::uint32_t number(std::string_view head, std::size_t offset, std::size_t bytes) {
    std::uint32_t value = 0;
    for (const char byte : head.substr(offset, bytes))
        value = value << 8 | static_cast<unsigned char>(byte);
    return value;
}

bool isDatabaseWithoutTables(std::string_view head) {
    return number(head, kApplicationId, 4) == 0 && number(head, kUserVersion, 4) == 0 &&
           number(head, kWriteVersion, 1) == 1 && number(head, kPageKind, 1) == 13 && number(head, kCellCount, 2) == 0;
}

StoreHeader::Kind kindOf(std::string_view head, bool hasJournal) {
    if (head.empty())
        return StoreHeader::Kind::empty;
    if (head.substr(0, kMagic.size()) != kMagic) {
        // A power cut while a store was made can leave zeros; its journal empties the file.
        const bool allZero = std::all_of(head.begin(), head.end(), [](char byte) { return byte == '\0'; });
        return allZero && hasJournal ? StoreHeader::Kind::ours : StoreHeader::Kind::foreign;
    }
    if (head.size() < StoreHeader::kSize)
        return StoreHeader::Kind::cutOff;
    if (number(head, kApplicationId, 4) == static_cast<std::uint32_t>(StoreMigrations::kApplicationId))
        return StoreHeader::Kind::ours;
    return isDatabaseWithoutTables(head) ? StoreHeader::Kind::empty : StoreHeader::Kind::foreign;
}

} // namespace

StoreHeader StoreHeader::judge(std::string_view head, bool hasJournal) {
    StoreHeader header;
    header.kind = kindOf(head, hasJournal);
    if (header.kind == Kind::ours && head.size() >= kHeaderSize)
        header.version = static_cast<std::int32_t>(number(head, kUserVersion, 4));
    return header;
}

bool StoreHeader::usesWriteAheadLog(std::string_view head) {
    return head.size() > kWriteVersion && number(head, kWriteVersion, 1) != 1;
}
