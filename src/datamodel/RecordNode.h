// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#if __cplusplus >= 202002L
#include <span>
#endif

#include "datamodel/FieldNode.h"
#include "datamodel/RecordSpec.h"
#include "framework/datamodel_api/Node.h"

class ModelContext;
class TableNode;

/// A record: a row of a table, or the root. Its fields lie behind it in the
/// same allocation; tables nested in it are made when first asked for.
class DM_API RecordNode final : public Node {
public:
    /// Makes a record with every field of `spec`, each empty. `spec` and
    /// `context` must outlive it. Released with `destroy`.
    static RecordNode* make(const RecordSpec& spec, ModelContext& context);
    static void destroy(RecordNode* record);

    void prepareUpdate() override;
    unsigned short getNodeCount() const override;
    DMSchemaContext* getSchemaContext() const override;
    DataType getValue() const override;
    bool setValue(const DataType& value, const NDX& where, int flags) override;

    const RecordSpec& spec() const { return *m_spec; }
#if __cplusplus >= 202002L // a program in C++17 asks for the nodes by name or number
    std::span<FieldNode> fields();
    std::span<const FieldNode> fields() const;
#endif
    /// The nested table of that index; never null for an index that the schema has.
    TableNode& table(std::size_t index);
    /// The same, but null where the table has not been asked for yet.
    TableNode* tableIfMade(std::size_t index) const;

    /// The field or nested table of that name, or null.
    Node* child(const char* name);

    /// Whether a field was assigned since the record was made or last marked
    /// as stored. (Nested tables keep count for themselves.)
    bool isChanged() const { return m_changed; }
    void markStored() { m_changed = false; }

    /// The store's own number of this record; 0 while it has none.
    std::int64_t storeId() const { return m_storeId; }
    void setStoreId(std::int64_t id) { m_storeId = id; }

private:
    friend class FieldNode;

    RecordNode(const RecordSpec& spec, ModelContext& context);
    ~RecordNode();

    // What lies behind the record in its allocation.
    FieldNode* firstField() const;
    TableNode** firstTable() const;
#if __cplusplus >= 202002L
    std::span<TableNode*> tables() const; // null where not made yet
#endif

    const RecordSpec* m_spec;
    ModelContext* m_context;
    std::int64_t m_storeId = 0;
    bool m_changed = false;
};
