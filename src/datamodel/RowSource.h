// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include "framework/datamodel_api/DmApi.h"

class RecordNode;

/// Where a table gets the rows it has not loaded yet: a store.
class DM_API RowSource {
public:
    virtual ~RowSource() = default;

    /// Fills `record` (made, every field empty) with the stored row `row`,
    /// counted from 1 over the rows as they were when the source was attached,
    /// and sets its store id. False when the row cannot be read; the caller
    /// then has no such row, and the source keeps the reason.
    virtual bool load(unsigned row, RecordNode& record) = 0;
};
