// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include "framework/datamodel_api/DataType.h"
#include "framework/datamodel_api/DmApi.h"
#include "framework/datamodel_api/DMSchemaContext.h"
#include "framework/datamodel_api/NDX.h"

/// One node of the host's tree: named children (fields, tables), rows, or a
/// value. The host owns every node; whoever calls holds plain pointers and
/// deletes none, hence the protected destructor.
///
/// The order of the virtual operations is part of the contract with hosts that
/// were built before; new ones go to the end.
class DM_API Node {
public:
    /// Called on the root before a row is appended.
    virtual void prepareUpdate() = 0;
    /// Number of rows of a table; 0 of any other node.
    virtual unsigned short getNodeCount() const = 0;
    virtual DMSchemaContext* getSchemaContext() const = 0; ///< asked of the root when an import starts
    /// The value of a leaf; the empty value of any other node.
    virtual DataType getValue() const = 0;
    /// Assigns a leaf's value; false when the model refuses it. `where` is
    /// always the node itself and `flags` 0.
    virtual bool setValue(const DataType& value, const NDX& where, int flags) = 0;

    /// The child of that name, or null. Provided by the host.
    Node* getNode(const NDX& name) const;
    /// A table's row, counted from 1, or null. Provided by the host.
    Node* getNodeNum(unsigned short row) const;

    Node(const Node&) = delete;
    Node& operator=(const Node&) = delete;

protected:
    Node() = default;
    ~Node() = default;
};
