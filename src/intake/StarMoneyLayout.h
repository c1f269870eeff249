// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <map>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "intake/DelimitedInspector.h"
#include "intake/InspectionOptions.h"
#include "intake/PhysicalLines.h"
#include "intake/PreparedFile.h"

/// The StarMoney export of 21 fixed columns, which the library reads by itself.
/// Exports of other layouts name their columns and are read like any list.
namespace StarMoneyLayout {

/// Whether the lines below a header have those columns, as far as they are sound.
bool isIn(std::span<const std::string_view> lines);
/// What that layout fixes.
InspectionOptions narrowed(const InspectionOptions& options);

/// Whether every line that is not empty has the 21 fields, and the library
/// splits it and reads its date and amount as `file`'s plan does.
bool isReadRight(const DelimitedFile& file, const PhysicalLines& physical);

/// Hands the lines over as they are, with line feeds.
void prepareFixed(const PhysicalLines& physical, PreparedFile& prepared);

/// Field of the data model to input columns.
std::map<std::string, std::vector<int>> columns();

} // namespace StarMoneyLayout
