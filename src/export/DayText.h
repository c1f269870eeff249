// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "framework/datamodel_api/DMDate.h"

/// Days in digits; nothing is appended for the zero date.
namespace DayText {

/// yyyy-mm-dd
void appendIso(std::string& out, const DMDate& day);
/// dd.mm.yyyy
void appendGerman(std::string& out, const DMDate& day);

} // namespace DayText
