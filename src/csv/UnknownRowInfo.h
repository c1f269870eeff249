// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

/// The fields of one line of unknown layout, in file order: pointers into the
/// split line, null behind the last field. Owns nothing.
struct UnknownRowInfo {
    static constexpr int kColumns = 50;
    char* m_columns[kColumns];
};
