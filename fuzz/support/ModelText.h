// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>

class DataManager;
class Node;

/// Everything that a tree holds, a line per field with its kind and exact
/// content: two trees are equal exactly when their texts are. The dates that the
/// clock stamps and the name of the file are told by whether they are there.
namespace ModelText {

/// `root` is the root of a tree of ours.
std::string of(Node& root);
std::string of(const DataManager& model);

} // namespace ModelText
