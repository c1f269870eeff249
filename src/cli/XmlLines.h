// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <optional>
#include <string_view>
#include <vector>

#include "cli/FileReport.h"
#include "cli/XmlList.h"

/// The lines of a document; from 1, each ending in a line feed.
namespace XmlLines {

/// What each line is: part of the records, before them, behind them, or blank.
/// Without records, what is not blank was ignored.
LineCounts count(std::string_view text, const std::optional<XmlList::Range>& records);

std::size_t numberOf(std::string_view text, std::size_t offset);
/// The lines of the first records, `count` of them; empty where the list does not have as many.
std::vector<std::size_t> ofRecords(std::string_view text, const XmlList& list, std::size_t count);
/// The line's range, without its end.
XmlList::Range around(std::string_view text, std::size_t offset);

} // namespace XmlLines
