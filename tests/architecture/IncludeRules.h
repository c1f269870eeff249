// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

#include "architecture/SourceTree.h"

/// Which room of src/ may include what. Whatever the table does not name is a
/// mistake: a room learns of another only on purpose.
namespace IncludeRules {

/// Why a file (path below src/) must not have this include; empty when it may.
std::string objection(const std::string& path, const SourceTree::Include& include);

/// All objections to a file, each with path and line.
std::vector<std::string> objections(const SourceTree::SourceFile& file);

} // namespace IncludeRules
