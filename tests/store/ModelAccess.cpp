// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "store/ModelAccess.h"

#include <bit>
#include <cstdint>
#include <sstream>

#include "datamodel/TableSpec.h"

namespace {

std::string exactly(const FieldNode& field) {
    const DataType value = field.getValue();
    switch (field.kind()) {
    case DataType::eEmpty:
        return "empty";
    case DataType::eInteger:
        return "integer " + std::to_string(value.getInt());
    case DataType::eCurrency:
        return "currency " + std::to_string(std::bit_cast<std::uint64_t>(value.getCurrency()));
    case DataType::eString:
        return "text '" + std::string(field.text()) + "'";
    case DataType::eDate:
        return "date " + std::to_string(value.getDate().year()) + "/" + std::to_string(value.getDate().month()) + "/" +
               std::to_string(value.getDate().day());
    case DataType::eBoolean:
        return value.getBoolean() ? "true" : "false";
    }
    return "unknown";
}

} // namespace

void ModelAccess::dump(std::ostream& out, RecordNode& record, const std::string& indent) {
    for (std::size_t i = 0; i < record.fields().size(); ++i)
        out << indent << record.spec().fields()[i].name << ": " << exactly(record.fields()[i]) << '\n';
    for (std::size_t i = 0; i < record.spec().tables().size(); ++i) {
        out << indent << record.spec().tables()[i].name << ":\n";
        TableNode& table = record.table(i);
        for (unsigned row = 1; row <= table.getNodeCount(); ++row) {
            out << indent << " row " << row << '\n';
            if (RecordNode* child = table.row(row))
                dump(out, *child, indent + "  ");
            else
                out << indent << "  unreadable\n";
        }
    }
}

std::string ModelAccess::dump(DataManager& model) {
    std::ostringstream out;
    dump(out, root(model));
    return out.str();
}
