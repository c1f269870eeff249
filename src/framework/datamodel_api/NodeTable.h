// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include "framework/datamodel_api/DmApi.h"
#include "framework/datamodel_api/Node.h"

/// A node whose children are rows, numbered from 1 without gaps.
class DM_API NodeTable : public Node {
public:
    /// Appends row `row`, which must be the row count plus one; the new row has
    /// every field of the table's schema, each empty. Zero when the row cannot
    /// be made: any other number, and 0, to which the number after 65,535
    /// wraps. Provided by the host.
    int create(unsigned short row);
    /// Removes a row of this table and renumbers those behind it. The library
    /// always passes true. Provided by the host.
    void destroy(Node* row, bool final);

protected:
    NodeTable() = default;
    ~NodeTable() = default;
};
