// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "cli/Console.h"
#include "cli/Message.h"
#include "intake/Intake.h"

/// What was found in a file, shown.
namespace InspectText {

/// `file` is the shell's bytes, `profile` the one by which it was read.
void writeJson(Console& console, std::string_view file, const IntakeResult& result,
               const std::optional<std::string>& profile, const std::vector<Message>& messages);
void writeTable(Console& console, std::string_view file, const IntakeResult& result);

/// The words for what was found; German, UTF-8.
std::string encodingText(const IntakeResult& result);
std::string lineEndsText(LineEnds ends);
std::string balanceText(BalanceProof proof);
std::string percent(double share);
/// With the place that decided.
std::string reasonText(const Reason& reason);

} // namespace InspectText
