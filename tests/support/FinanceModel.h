// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <algorithm>
#include <memory>
#include <stdexcept>
#include <string>
#include <string_view>

#include "datamodel/DataManager.h"
#include "datamodel/DataModel.h"
#include "framework/datamodel_api/DataModelApi.h"
#include "support/SchemaDraft.h"

/// A fresh data model whose nodes a test reads by paths such as
/// "NextImportID" or "DataSets/2/Betrag" (rows count from 1).
class FinanceModel {
public:
    /// The finance tree as programs get it.
    FinanceModel() : m_manager(std::make_unique<DataManager>()), m_root(m_manager->root()) {}

    /// A tree of another schema; its two counters, where it has them, start at 1 as well.
    explicit FinanceModel(const SchemaDraft& schema)
        : m_other(std::make_unique<DataModel>(schema.build())), m_root(&m_other->root()) {
        for (const char* counter : {"NextImportID", "NextUniqueID"}) {
            if (Node* node = this->node(counter))
                node->setValue(DataType::makeInteger(1), NDX(), 0);
        }
    }

    Node* root() const { return m_root; }

    /// Null when there is no such node.
    Node* node(const std::string& path) const {
        Node* found = m_root;
        for (std::string::size_type at = 0; found != nullptr && at < path.size();) {
            const std::string::size_type slash = std::min(path.find('/', at), path.size());
            const std::string step = path.substr(at, slash - at);
            found = step.find_first_not_of("0123456789") == std::string::npos
                        ? found->getNodeNum(static_cast<unsigned short>(std::stoul(step)))
                        : found->getNode(NDX(step.c_str()));
            at = slash + 1;
        }
        return found;
    }

    /// The value there; throws where there is no such node, so that a misspelt
    /// path is not taken for an empty field.
    DataType value(const std::string& path) const { return existing(path)->getValue(); }
    DataType::E_Kind kind(const std::string& path) const { return value(path).kind(); }
    int integer(const std::string& path) const { return value(path).getInt(); }
    double amount(const std::string& path) const { return value(path).getCurrency(); }
    /// Display form: "-20,00", "31.12.2004", "Ja"; empty for an empty field.
    std::string text(const std::string& path) const { return value(path).asString(true, 2); }
    int rows(const std::string& table) const { return existing(table)->getNodeCount(); }

    void set(const std::string& path, const DataType& value) const {
        if (!existing(path)->setValue(value, NDX(), 0))
            throw std::invalid_argument("value refused: " + path);
    }

private:
    Node* existing(const std::string& path) const {
        Node* found = node(path);
        if (found == nullptr)
            throw std::invalid_argument("no such node: " + path);
        return found;
    }

    std::unique_ptr<DataManager> m_manager;
    std::unique_ptr<DataModel> m_other;
    Node* m_root;
};

/// A text value.
inline DataType textValue(const char* text) {
    DataType value;
    value = text;
    return value;
}

/// A date value.
inline DataType dateValue(unsigned day, unsigned month, unsigned year) {
    DataType value;
    value = DMDate(day, month, year);
    return value;
}
