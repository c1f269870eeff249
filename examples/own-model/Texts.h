// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>

std::string utf8FromLatin1(const std::string& latin1);

/// Characters that Latin-1 lacks become "?".
std::string latin1FromUtf8(const std::string& utf8);
