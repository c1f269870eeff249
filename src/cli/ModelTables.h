// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>

#include "datamodel/FieldNode.h"
#include "datamodel/RecordNode.h"
#include "datamodel/TableNode.h"

/// Tables and fields of the finance schema by name. A name that the schema does
/// not have is a mistake of the program: std::logic_error.
namespace ModelTables {

TableNode& table(RecordNode& record, std::string_view name);
FieldNode& field(RecordNode& record, std::string_view name);

} // namespace ModelTables
