// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>

#include "framework/datamodel_api/DmApi.h"
#include "framework/datamodel_api/DMDate.h"

/// A typed value as a leaf of the host's tree holds it.
///
/// Texts are Latin-1 bytes that end at the first zero byte; the value owns its
/// copy. How the copy is kept (in the value, or in memory that the host shares
/// between copies of a value) is the host's business: it provides every member
/// that is not defined here. Values may be copied freely, on one thread.
class DM_API DataType {
public:
    /// The numbers are part of the contract.
    enum E_Kind : std::uint8_t { eEmpty = 0, eInteger = 2, eCurrency = 3, eString = 4, eDate = 5, eBoolean = 6 };

    DataType() = default;
    DataType(const DataType& other);
    ~DataType();

    DataType& operator=(const DataType& other);
    /// Takes a copy of `text`; null is the empty text.
    DataType& operator=(const char* text);
    DataType& operator=(const DMDate& date);

    static DataType makeInteger(std::int32_t number) {
        DataType value(eInteger);
        value.m_content.integer = number;
        return value;
    }
    /// An amount in currency units.
    static DataType makeCurrency(double amount) {
        DataType value(eCurrency);
        value.m_content.currency = amount;
        return value;
    }
    static DataType makeBoolean(bool flag) {
        DataType value(eBoolean);
        value.m_content.boolean = flag;
        return value;
    }

    E_Kind kind() const { return m_kind; }

    /// The integer of an integer value; 0 of any other.
    int getInt() const;
    /// The date of a date value; the zero date of any other.
    DMDate getDate() const;
    /// Display text. Called with `grouped` true and two decimals; what the
    /// arguments mean for other kinds than amounts is the host's business.
    std::string asString(bool grouped, unsigned short decimals) const;

    /// The amount of a currency value; 0 of any other.
    double getCurrency() const { return m_kind == eCurrency ? m_content.currency : 0.0; }
    bool getBoolean() const { return m_kind == eBoolean && m_content.boolean; }

private:
    friend class DataTypeAccess; // the host's own way to the content below

    union Content {
        std::int32_t integer;
        double currency;
        bool boolean;
        DMDate date;
        char* text;         // kind eString when m_longText
        char shortText[16]; // kind eString otherwise, zero-terminated
        Content() : shortText{} {}
    };

    explicit DataType(E_Kind kind) : m_kind(kind) {}

    Content m_content;
    E_Kind m_kind = eEmpty;
    bool m_longText = false;
};
