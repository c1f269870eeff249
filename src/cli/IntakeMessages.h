// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <vector>

#include "cli/InputFile.h"
#include "cli/Message.h"
#include "intake/Intake.h"

namespace IntakeMessages {

/// What the inspection of a file has to say, with the lines that are meant.
/// `input` must still be the file itself.
std::vector<Message> of(const IntakeResult& result, const InputFile& input);

} // namespace IntakeMessages
