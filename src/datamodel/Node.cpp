// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "framework/datamodel_api/Node.h"

#include <typeinfo>

#include "datamodel/RecordNode.h"
#include "datamodel/TableNode.h"

// The contract declares these two without virtual dispatch, and the model's
// nodes are final classes, so that the exact type decides.

Node* Node::getNode(const NDX& name) const {
    Node* self = const_cast<Node*>(this); // the contract hands out changeable children of constant nodes
    if (name.name() == nullptr)
        return self;
    if (typeid(*this) == typeid(RecordNode))
        return static_cast<RecordNode*>(self)->child(name.name());
    return nullptr;
}

Node* Node::getNodeNum(unsigned short row) const {
    if (typeid(*this) == typeid(TableNode))
        return static_cast<TableNode*>(const_cast<Node*>(this))->row(row);
    return nullptr;
}
