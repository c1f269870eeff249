// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <vector>

#include "cli/FileReading.h"
#include "cli/Message.h"
#include "cli/ModelWatch.h"

/// Tells of refused records with the line and the cell that caused it.
namespace RefusalMessages {

std::vector<Message> of(const std::vector<ModelWatch::Refusal>& refusals, const FileReading& reading);

/// The physical line of a record, counted from 1 in the order of the import;
/// none for formats whose records span lines.
std::optional<std::size_t> lineOf(std::size_t record, const FileReading& reading);

} // namespace RefusalMessages
