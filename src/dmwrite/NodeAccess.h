// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include "framework/datamodel_api/DataModelApi.h"

/// The two steps that every write into the host's tree is made of. A null node
/// is a missing one: the step fails, nothing is written.
namespace NodeAccess {

/// Assigns a field of `parent`; false when there is no such field or the model
/// refuses the value.
bool assignField(const Node* parent, const char* name, const DataType& value);

/// Appends a row to the table of that name under `root` and returns it; null
/// when there is no such table or it takes no more rows.
Node* appendRow(Node* root, const char* tableName);

} // namespace NodeAccess
