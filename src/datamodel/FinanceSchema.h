// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include "datamodel/RecordSpec.h"

/// The schema of a personal-finance tree: the tables and counters that imports
/// read and write.
DM_API RecordSpec makeFinanceSchema();
