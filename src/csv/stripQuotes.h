// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "framework/ImportModuleApi.h"

/// The text between a leading and a trailing double quote; a text without both,
/// whole. A single double quote yields the empty text.
IMPORT_MODULE_API std::string stripQuotes(const char* text);
