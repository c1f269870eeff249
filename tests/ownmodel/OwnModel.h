// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "framework/datamodel_api/DataModelApi.h"

// A second data model behind the contract, as small as it can be. It differs
// from ours wherever the contract leaves the host a choice: bounds, century
// window, display form, and which fields a record has.

/// What the library told the model.
struct OwnModelLog {
    int nodeSizeChecks = 0;
    int managerSizeChecks = 0;
    int wrongSizes = 0;
    int updatesPrepared = 0;
    bool rowPrepared = false; ///< the row that is made next was announced
    int rowsDestroyed = 0;
    /// Calls outside the contract: other keys, flags or row numbers than it names,
    /// rows made unannounced.
    int breaches = 0;
};

/// Lives before the first static initialiser runs: the checks at load come early.
extern OwnModelLog g_ownModelLog;

/// A leaf takes values of one kind, and never an empty one.
class OwnLeaf final : public Node {
public:
    explicit OwnLeaf(DataType::E_Kind kind) : m_kind(kind) {}

    void prepareUpdate() override {}
    unsigned short getNodeCount() const override { return 0; }
    DMSchemaContext* getSchemaContext() const override;
    DataType getValue() const override { return m_value; }
    bool setValue(const DataType& value, const NDX& where, int flags) override;

private:
    DataType::E_Kind m_kind;
    DataType m_value;
};

using OwnFields = std::vector<std::pair<std::string, DataType::E_Kind>>;

class OwnTable;

/// A record or the root: leaves by name, and tables by name.
class OwnRecord final : public Node {
public:
    explicit OwnRecord(const OwnFields& fields);
    ~OwnRecord();

    void prepareUpdate() override {
        ++g_ownModelLog.updatesPrepared;
        g_ownModelLog.rowPrepared = true;
        if (m_onPrepare)
            m_onPrepare();
    }
    unsigned short getNodeCount() const override { return 0; }
    DMSchemaContext* getSchemaContext() const override;
    DataType getValue() const override { return {}; }
    bool setValue(const DataType&, const NDX&, int) override { return false; }

    void addTable(const char* name, OwnFields rowFields);
    Node* child(const std::string& name) const;
    void onPrepare(std::function<void()> action) { m_onPrepare = std::move(action); }

private:
    std::function<void()> m_onPrepare;
    std::vector<std::pair<std::string, std::unique_ptr<OwnLeaf>>> m_leaves;
    std::vector<std::pair<std::string, std::unique_ptr<OwnTable>>> m_tables;
};

class OwnTable final : public NodeTable {
public:
    explicit OwnTable(OwnFields rowFields) : m_rowFields(std::move(rowFields)) {}

    void prepareUpdate() override {}
    unsigned short getNodeCount() const override { return static_cast<unsigned short>(m_rows.size()); }
    DMSchemaContext* getSchemaContext() const override;
    DataType getValue() const override { return {}; }
    bool setValue(const DataType&, const NDX&, int) override { return false; }

private:
    friend class Node;
    friend class NodeTable;

    OwnFields m_rowFields;
    std::vector<std::unique_ptr<OwnRecord>> m_rows;
};

/// What the contract calls a data manager's model: here the root alone.
class DataModel {
public:
    DataModel();
    OwnRecord root;
};
