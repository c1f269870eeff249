// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

/// The fields of one line of a StarMoney export, in file order: pointers into
/// the split line. Owns nothing. (The name is misspelt in hosts, too.)
struct ImportDataSetStartMoney {
    static constexpr int kColumns = 21;
    char* m_columns[kColumns];
};
