// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include "dmwrite/E_ColumnIndex.h"

/// Which column of the input feeds which column of the data model. A plain
/// structure of fifteen words, copied whole.
struct ColumnAssignment {
    static constexpr int kMaxPairs = 7;

    struct Pair {
        int m_inputColumn; ///< from 0
        Import::E_ColumnIndex m_column;
    };

    Pair m_pairs[kMaxPairs];
    int m_count; ///< pairs in use; more than seven are read as seven, -1 means "no assignment"
};
