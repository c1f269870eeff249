// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <map>

#include "datamodel/RecordNode.h"

/// The import sessions that records name, by number: rows of "Importsessions", owned by the model.
using ExportSessions = std::map<std::int32_t, const RecordNode*>;
