// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "framework/datamodel_api/NodeTable.h"

#include <typeinfo>

#include "datamodel/RecordNode.h"
#include "datamodel/TableNode.h"

int NodeTable::create(unsigned short row) {
    // Behind the last row the number wraps to 0; the table itself refuses it, and its observer hears of it.
    if (typeid(*this) != typeid(TableNode) || row != static_cast<unsigned short>(getNodeCount() + 1))
        return 0;
    return static_cast<TableNode*>(this)->append() != nullptr ? 1 : 0;
}

void NodeTable::destroy(Node* row, bool /*final*/) {
    if (row == nullptr || typeid(*this) != typeid(TableNode) || typeid(*row) != typeid(RecordNode))
        return;
    static_cast<TableNode*>(this)->remove(static_cast<RecordNode*>(row));
}
