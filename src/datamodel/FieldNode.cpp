// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "datamodel/FieldNode.h"

#include <cstring>

#include "datamodel/DataTypeAccess.h"
#include "datamodel/ModelContext.h"
#include "datamodel/ModelObserver.h"
#include "datamodel/RecordNode.h"

static_assert(sizeof(FieldNode) == 24, "nine fields and their record share four cache lines");

FieldNode::~FieldNode() { releaseText(); }

void FieldNode::prepareUpdate() {}

unsigned short FieldNode::getNodeCount() const { return 0; }

DMSchemaContext* FieldNode::getSchemaContext() const { return record().getSchemaContext(); }

RecordNode& FieldNode::record() const {
    // The fields lie behind their record, in the order of their index.
    auto* first = reinterpret_cast<unsigned char*>(const_cast<FieldNode*>(this - m_index));
    return *reinterpret_cast<RecordNode*>(first - sizeof(RecordNode));
}

std::string_view FieldNode::text() const {
    if (m_kind != DataType::eString)
        return {};
    if (m_length == kLongText)
        return content<SharedText*>()->text();
    return {reinterpret_cast<const char*>(m_content), m_length};
}

DataType FieldNode::getValue() const {
    switch (m_kind) {
    case DataType::eEmpty:
        break;
    case DataType::eInteger:
        return DataType::makeInteger(integer());
    case DataType::eCurrency:
        return DataType::makeCurrency(amount());
    case DataType::eString:
        return textValue();
    case DataType::eDate: {
        DataType value;
        value = date();
        return value;
    }
    case DataType::eBoolean:
        return DataType::makeBoolean(flag());
    }
    return {};
}

DataType FieldNode::textValue() const {
    const std::string_view bytes = text();
    if (bytes.size() > DataTypeAccess::kInlineText)
        return DataTypeAccess::makeText(*content<SharedText*>());
    return DataTypeAccess::makeText(bytes);
}

bool FieldNode::setValue(const DataType& value, const NDX& where, int /*flags*/) {
    RecordNode& owner = record();
    if (where.name() != nullptr)
        return false;
    const FieldSpec& spec = owner.spec().fields()[m_index];
    if (!spec.takes(value)) {
        if (ModelObserver* observer = owner.m_context->observer())
            observer->valueRefused(owner, spec, value);
        return false;
    }
    restore(value);
    owner.m_changed = true;
    return true;
}

void FieldNode::restore(const DataType& value) {
    switch (value.kind()) {
    case DataType::eString:
        restoreText(value);
        return;
    case DataType::eEmpty:
        releaseText();
        break;
    case DataType::eInteger:
        releaseText();
        setContent(static_cast<std::int32_t>(value.getInt()));
        break;
    case DataType::eCurrency:
        releaseText();
        setContent(value.getCurrency());
        break;
    case DataType::eDate:
        releaseText();
        setContent(value.getDate());
        break;
    case DataType::eBoolean:
        releaseText();
        setContent(value.getBoolean());
        break;
    }
    m_kind = value.kind();
    m_length = 0;
}

void FieldNode::restoreText(const DataType& value) {
    const std::string_view bytes = DataTypeAccess::text(value);
    if (bytes.size() <= kShortText) {
        releaseText();
        std::memcpy(m_content, bytes.data(), bytes.size());
        m_length = static_cast<std::uint8_t>(bytes.size());
    } else {
        SharedText* shared = DataTypeAccess::sharedText(value);
        SharedText* owned = shared != nullptr ? shared->acquire() : SharedText::make(bytes);
        releaseText();
        setContent(owned);
        m_length = kLongText;
    }
    m_kind = DataType::eString;
}

void FieldNode::releaseText() {
    if (m_length == kLongText)
        content<SharedText*>()->release();
}
