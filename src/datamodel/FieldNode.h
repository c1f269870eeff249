// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string_view>

#include "framework/datamodel_api/Node.h"

class RecordNode;

/// A leaf: one field of a record. Lives inside its record's one allocation, so
/// it is kept small: short texts lie in the node itself, longer ones in a block
/// that copies of the value share.
class DM_API FieldNode final : public Node {
public:
    void prepareUpdate() override;
    unsigned short getNodeCount() const override;
    DMSchemaContext* getSchemaContext() const override;
    DataType getValue() const override;
    /// False, and nothing changes, when the value's kind is not the field's,
    /// when it is empty, an amount outside the bounds or not a number, or the
    /// zero date where the field demands a date.
    bool setValue(const DataType& value, const NDX& where, int flags) override;

    DataType::E_Kind kind() const { return m_kind; }
    /// The bytes of a text field; empty for any other. Valid until the field changes.
    std::string_view text() const;

    // The bare content, for a field of just that kind: no value is made for it.
    std::int32_t integer() const { return content<std::int32_t>(); }
    double amount() const { return content<double>(); }
    DMDate date() const { return content<DMDate>(); }
    bool flag() const { return content<bool>(); }

    /// Takes a value without asking the schema and without marking the record
    /// as changed: for a store that hands back what was accepted before.
    void restore(const DataType& value);

private:
    friend class RecordNode;

    static constexpr std::uint8_t kLongText = 0xFF;

    explicit FieldNode(std::uint8_t index) : m_index(index) {}
    ~FieldNode();
    RecordNode& record() const;

    DataType textValue() const;
    void restoreText(const DataType& value);
    void releaseText();

    // Number, date, pointer to a long text, or the bytes of a short text. Raw
    // bytes, so that the three members behind share the last of the 24 bytes.
    static constexpr std::size_t kShortText = 13;
    alignas(8) unsigned char m_content[kShortText] = {};
    DataType::E_Kind m_kind = DataType::eEmpty;
    std::uint8_t m_length = 0; // of a short text, or kLongText
    std::uint8_t m_index;

    template <typename T>
    T content() const {
        static_assert(sizeof(T) <= kShortText);
        T value;
        std::memcpy(&value, m_content, sizeof value);
        return value;
    }
    template <typename T>
    void setContent(T value) {
        static_assert(sizeof(T) <= kShortText);
        std::memcpy(m_content, &value, sizeof value);
    }
};
