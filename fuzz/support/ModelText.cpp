// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "support/ModelText.h"

#include <bit>
#include <cstdint>
#include <string_view>

#include "datamodel/DataManager.h"
#include "datamodel/RecordNode.h"
#include "datamodel/TableNode.h"
#include "datamodel/TableSpec.h"

namespace {

/// What differs from run to run by its nature: the day, and the name of a scratch file.
bool isIncidental(std::string_view field) {
    return field == "LetztesImportDatum" || field == "ImportDatum" || field == "ImportFileName";
}

void append(std::string& out, std::string_view name, const FieldNode& field) {
    if (field.kind() == DataType::eEmpty)
        return;
    out += name;
    switch (isIncidental(name) ? DataType::eEmpty : field.kind()) {
    case DataType::eEmpty:
        break;
    case DataType::eInteger:
        out += " integer " + std::to_string(field.integer());
        break;
    case DataType::eCurrency:
        out += " amount " + std::to_string(std::bit_cast<std::uint64_t>(field.amount()));
        break;
    case DataType::eString:
        out += " text ";
        out += field.text();
        break;
    case DataType::eDate:
        out += " date " + field.getValue().asString(true, 2);
        break;
    case DataType::eBoolean:
        out += field.flag() ? " yes" : " no";
        break;
    }
    out += '\n';
}

void append(std::string& out, RecordNode& record) {
    for (std::size_t i = 0; i < record.fields().size(); ++i)
        append(out, record.spec().fields()[i].name, record.fields()[i]);
    for (std::size_t i = 0; i < record.spec().tables().size(); ++i) {
        TableNode& table = record.table(i);
        out += record.spec().tables()[i].name + " of " + std::to_string(table.getNodeCount()) + '\n';
        for (unsigned row = 1; row <= table.getNodeCount(); ++row) {
            out += "row " + std::to_string(row) + '\n';
            if (RecordNode* child = table.row(row))
                append(out, *child);
            else
                out += "unreadable\n";
        }
    }
}

} // namespace

std::string ModelText::of(Node& root) {
    std::string out;
    append(out, dynamic_cast<RecordNode&>(root));
    return out;
}

std::string ModelText::of(const DataManager& model) { return of(*model.root()); }
