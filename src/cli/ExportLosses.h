// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <vector>

#include "cli/Message.h"
#include "export/Losses.h"

namespace ExportLosses {

/// What the format could not keep, one message a kind, with the number and the
/// "UniqueID" of the records.
std::vector<Message> messages(const Losses& losses);

} // namespace ExportLosses
