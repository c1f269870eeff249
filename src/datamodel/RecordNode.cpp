// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "datamodel/RecordNode.h"

#include <memory>
#include <new>

#include "datamodel/ModelContext.h"
#include "datamodel/TableNode.h"
#include "datamodel/TableSpec.h"

// The record, its fields and the pointers to its tables follow one another in
// one allocation, without gaps.
static_assert(sizeof(RecordNode) % alignof(FieldNode) == 0);
static_assert(sizeof(FieldNode) % alignof(TableNode*) == 0);
static_assert(alignof(RecordNode) <= __STDCPP_DEFAULT_NEW_ALIGNMENT__);

RecordNode* RecordNode::make(const RecordSpec& spec, ModelContext& context) {
    const std::size_t bytes =
        sizeof(RecordNode) + spec.fields().size() * sizeof(FieldNode) + spec.tables().size() * sizeof(TableNode*);
    return new (::operator new(bytes)) RecordNode(spec, context);
}

void RecordNode::destroy(RecordNode* record) {
    if (record == nullptr)
        return;
    record->~RecordNode();
    ::operator delete(record);
}

RecordNode::RecordNode(const RecordSpec& spec, ModelContext& context) : m_spec(&spec), m_context(&context) {
    FieldNode* field = firstField();
    for (std::size_t i = 0; i < spec.fields().size(); ++i)
        new (field + i) FieldNode(static_cast<std::uint8_t>(i));
    std::uninitialized_fill_n(firstTable(), spec.tables().size(), nullptr);
}

RecordNode::~RecordNode() {
    for (TableNode* table : tables())
        delete table;
    for (FieldNode& field : fields())
        field.~FieldNode();
}

void RecordNode::prepareUpdate() {}

unsigned short RecordNode::getNodeCount() const { return 0; }

DMSchemaContext* RecordNode::getSchemaContext() const { return m_context; }

DataType RecordNode::getValue() const { return {}; }

bool RecordNode::setValue(const DataType& /*value*/, const NDX& /*where*/, int /*flags*/) { return false; }

FieldNode* RecordNode::firstField() const { return reinterpret_cast<FieldNode*>(const_cast<RecordNode*>(this + 1)); }

TableNode** RecordNode::firstTable() const {
    return reinterpret_cast<TableNode**>(firstField() + m_spec->fields().size());
}

std::span<FieldNode> RecordNode::fields() { return {firstField(), m_spec->fields().size()}; }

std::span<const FieldNode> RecordNode::fields() const { return {firstField(), m_spec->fields().size()}; }

std::span<TableNode*> RecordNode::tables() const { return {firstTable(), m_spec->tables().size()}; }

TableNode& RecordNode::table(std::size_t index) {
    TableNode*& table = tables()[index];
    if (table == nullptr)
        table = new TableNode(m_spec->tables()[index].row, *m_context);
    return *table;
}

TableNode* RecordNode::tableIfMade(std::size_t index) const { return tables()[index]; }

Node* RecordNode::child(const char* name) {
    const std::optional<std::size_t> position = m_spec->position(name);
    if (!position)
        return nullptr;
    const std::size_t fieldCount = m_spec->fields().size();
    if (*position < fieldCount)
        return firstField() + *position;
    return &table(*position - fieldCount);
}
