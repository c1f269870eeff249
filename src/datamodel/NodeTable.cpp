// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "framework/datamodel_api/NodeTable.h"

#include <typeinfo>

#include "datamodel/RecordNode.h"
#include "datamodel/TableNode.h"

int NodeTable::create(unsigned short row) {
    if (typeid(*this) != typeid(TableNode) || row != getNodeCount() + 1)
        return 0;
    return static_cast<TableNode*>(this)->append() != nullptr ? 1 : 0;
}

void NodeTable::destroy(Node* row, bool /*final*/) {
    if (row == nullptr || typeid(*this) != typeid(TableNode) || typeid(*row) != typeid(RecordNode))
        return;
    static_cast<TableNode*>(this)->remove(static_cast<RecordNode*>(row));
}
