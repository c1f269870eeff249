// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

#include "framework/ImportModuleApi.h"

/// The text between a leading and a trailing double quote; a text without both,
/// whole. A single double quote yields the empty text.
IMPORT_MODULE_API std::string stripQuotes(const char* text);

/// The same as a part of `text`, without a copy.
std::string_view withoutQuotes(std::string_view text);
