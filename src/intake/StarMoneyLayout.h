// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <map>
#include <string>
#include <vector>

#include "intake/DelimitedInspector.h"
#include "intake/PhysicalLines.h"
#include "intake/PreparedFile.h"

/// The StarMoney export of 21 fixed columns, which the library reads by itself.
/// Exports of other layouts name their columns and are read like any list.
namespace StarMoneyLayout {

/// Whether every line that is not empty has the 21 fields under the names that
/// go with them, and the library reads every date and amount as `file`'s plan does.
bool isReadRight(const DelimitedFile& file);

/// Hands the lines over as they are, with line feeds.
void prepareFixed(const PhysicalLines& physical, PreparedFile& prepared);

/// Field of the data model to input columns.
std::map<std::string, std::vector<int>> columns();

} // namespace StarMoneyLayout
