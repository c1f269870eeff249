// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "datamodel/TableNode.h"

#include <algorithm>
#include <stdexcept>

#include "datamodel/ModelContext.h"
#include "datamodel/ModelObserver.h"
#include "datamodel/RecordNode.h"

namespace {

struct Destroy {
    void operator()(RecordNode* record) const { RecordNode::destroy(record); }
};
using OwnedRecord = std::unique_ptr<RecordNode, Destroy>;

static_assert(alignof(RecordNode) >= 2, "RowSlot marks rows that are not loaded in an address's last bit");

} // namespace

TableNode::TableNode(const RecordSpec& rowSpec, ModelContext& context) : m_rowSpec(&rowSpec), m_context(&context) {}

TableNode::~TableNode() {
    for (const RowSlot& slot : m_rows)
        RecordNode::destroy(slot.record());
}

void TableNode::prepareUpdate() {}

unsigned short TableNode::getNodeCount() const { return static_cast<unsigned short>(m_rows.size()); }

DMSchemaContext* TableNode::getSchemaContext() const { return m_context; }

DataType TableNode::getValue() const { return {}; }

bool TableNode::setValue(const DataType& /*value*/, const NDX& /*where*/, int /*flags*/) { return false; }

RecordNode* TableNode::row(unsigned number) {
    if (number == 0 || number > m_rows.size())
        return nullptr;
    const RowSlot slot = m_rows[number - 1];
    return slot.isLoaded() ? slot.record() : load(number);
}

RecordNode* TableNode::load(unsigned number) {
    OwnedRecord record(RecordNode::make(*m_rowSpec, *m_context));
    if (!m_source->load(m_rows[number - 1].sourceRow(), *record))
        return nullptr;
    record->markStored();
    m_rows[number - 1] = RowSlot::ofRecord(record.get());
    return record.release();
}

RecordNode* TableNode::rowIfLoaded(unsigned number) const {
    return number != 0 && number <= m_rows.size() ? m_rows[number - 1].record() : nullptr;
}

RecordNode* TableNode::append() {
    ModelObserver* observer = m_context->observer();
    if (m_rows.size() >= kMaxRows) {
        if (observer != nullptr)
            observer->rowRefused(*this);
        return nullptr;
    }
    OwnedRecord owned(RecordNode::make(*m_rowSpec, *m_context));
    m_rows.push_back(RowSlot::ofRecord(owned.get()));
    RecordNode* record = owned.release();
    if (observer != nullptr)
        observer->rowAppended(*this, *record);
    return record;
}

bool TableNode::remove(RecordNode* record) {
    if (record == nullptr)
        return false;
    const auto found =
        std::find_if(m_rows.rbegin(), m_rows.rend(), [record](RowSlot slot) { return slot.record() == record; });
    if (found == m_rows.rend())
        return false;
    const auto place = std::prev(found.base());
    if (static_cast<std::size_t>(place - m_rows.begin()) < m_storedRows) {
        m_removed.push_back(record->storeId());
        --m_storedRows;
    }
    m_rows.erase(place);
    RecordNode::destroy(record);
    return true;
}

unsigned TableNode::removeLoaded(const std::function<bool(RecordNode&)>& isUnwanted) {
    std::size_t kept = 0;
    unsigned keptStored = 0;
    for (std::size_t place = 0; place < m_rows.size(); ++place) {
        const bool stored = place < m_storedRows;
        RecordNode* record = m_rows[place].record();
        if (record != nullptr && isUnwanted(*record)) {
            if (stored)
                m_removed.push_back(record->storeId());
            RecordNode::destroy(record);
            continue;
        }
        keptStored += stored ? 1 : 0;
        m_rows[kept++] = m_rows[place];
    }
    const auto removed = static_cast<unsigned>(m_rows.size() - kept);
    m_rows.erase(m_rows.begin() + static_cast<std::ptrdiff_t>(kept), m_rows.end());
    m_storedRows = keptStored;
    return removed;
}

void TableNode::attach(std::shared_ptr<RowSource> source, unsigned count) {
    if (!m_rows.empty() || !m_removed.empty() || source == nullptr || count > kMaxRows)
        throw std::invalid_argument("TableNode::attach: the table has rows, there is no source, or too many rows");
    m_rows.reserve(count);
    for (unsigned row = 1; row <= count; ++row)
        m_rows.push_back(RowSlot::ofSourceRow(row));
    m_source = std::move(source);
    m_storedRows = count;
}

void TableNode::markStored() {
    for (const RowSlot& slot : m_rows) {
        if (RecordNode* record = slot.record())
            record->markStored();
    }
    m_removed.clear();
    m_storedRows = static_cast<unsigned>(m_rows.size());
}
