// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "dmwrite/NodeAccess.h"

#include "framework/AssertTypeSizes.h"

namespace NodeAccess {

bool assignField(const Node* parent, const char* name, const DataType& value) {
    Node* field = parent != nullptr ? parent->getNode(NDX(name)) : nullptr;
    return field != nullptr && field->setValue(value, NDX(), 0);
}

Node* appendRow(Node* root, const char* tableName) {
    if (root == nullptr)
        return nullptr;
    root->prepareUpdate();
    auto* table = dynamic_cast<NodeTable*>(root->getNode(NDX(tableName)));
    if (table == nullptr)
        return nullptr;
    // Behind row 65,535 the number wraps to 0, which no table creates.
    const auto row = static_cast<unsigned short>(table->getNodeCount() + 1);
    return table->create(row) != 0 ? table->getNodeNum(row) : nullptr;
}

} // namespace NodeAccess
