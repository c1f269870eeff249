// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

/// Marks what the host's data-model libraries export. The model may be linked
/// in from any library or from the program itself, so the mark is the same for
/// provider and user.
#if defined(__GNUC__)
#define DM_API __attribute__((visibility("default")))
#else
#define DM_API
#endif
