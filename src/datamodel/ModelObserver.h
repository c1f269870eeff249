// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include "framework/datamodel_api/DmApi.h"

class DataType;
class RecordNode;
class TableNode;
struct FieldSpec;

/// Hears what happens to a tree while somebody else writes it: a program that
/// calls an import learns which records were made and which values were refused,
/// which the import itself tells only as text. Called synchronously, on the
/// thread that writes; must not change the tree.
class DM_API ModelObserver {
public:
    virtual ~ModelObserver() = default;

    /// `row` is the last row of `table` now, every field empty.
    virtual void rowAppended(const TableNode& /*table*/, const RecordNode& /*row*/) {}
    /// The table is full.
    virtual void rowRefused(const TableNode& /*table*/) {}
    /// `field` of `record` does not take `value`; nothing has changed.
    virtual void valueRefused(const RecordNode& /*record*/, const FieldSpec& /*field*/, const DataType& /*value*/) {}
};
