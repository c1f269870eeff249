// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

/// Marks what libImportModule exports.
#if defined(__GNUC__)
#define IMPORT_MODULE_API __attribute__((visibility("default")))
#else
#define IMPORT_MODULE_API
#endif
