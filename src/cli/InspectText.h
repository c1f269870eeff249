// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>
#include <vector>

#include "cli/Console.h"
#include "cli/Message.h"
#include "intake/Intake.h"

/// What was found in a file, shown.
namespace InspectText {

/// `file` is the shell's bytes.
void writeJson(Console& console, std::string_view file, const IntakeResult& result,
               const std::vector<Message>& messages);
void writeTable(Console& console, std::string_view file, const IntakeResult& result);

} // namespace InspectText
