// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "homebanking/HostAccess.h"

#include <QtCore/QByteArray>
#include <QtCore/QString>

#include "framework/AssertTypeSizes.h"

namespace HostAccess {

std::string text(const QString& text) { return text.toLatin1().constData(); }

DataType textValue(const QString& text) {
    DataType value;
    value = text.toLatin1().constData();
    return value;
}

std::string fieldText(const Node& row, const char* field) {
    const Node* node = row.getNode(NDX(field));
    const DataType value = node != nullptr ? node->getValue() : DataType();
    return value.kind() == DataType::eString ? value.asString(true, 2) : std::string();
}

Node* appendRow(NodeTable* table) {
    constexpr unsigned short kLastRow = 65535; // behind it, the number would wrap to 0
    if (table == nullptr || table->getNodeCount() == kLastRow)
        return nullptr;
    const auto row = static_cast<unsigned short>(table->getNodeCount() + 1);
    return table->create(row) != 0 ? table->getNodeNum(row) : nullptr;
}

} // namespace HostAccess
