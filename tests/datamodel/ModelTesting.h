// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <locale>
#include <ostream>
#include <string>

#include "framework/datamodel_api/DataModelApi.h"

/// Short ways to make values, for the tests of the model.
namespace ModelTesting {

inline DataType text(const std::string& bytes) {
    DataType value;
    value = bytes.c_str();
    return value;
}

inline DataType date(unsigned day, unsigned month, unsigned year) {
    DataType value;
    value = DMDate(day, month, year);
    return value;
}

inline DataType zeroDate() {
    DataType value;
    value = DMDate();
    return value;
}

inline std::string display(const DataType& value) { return value.asString(true, 2); }

inline bool assign(Node* node, const DataType& value) { return node->setValue(value, NDX(), 0); }

inline NodeTable* tableOf(Node* node, const char* name) { return dynamic_cast<NodeTable*>(node->getNode(NDX(name))); }

/// While it lives, every C++ stream and facet of the process writes numbers
/// with comma and grouping dots.
class CommaDecimalLocale {
public:
    CommaDecimalLocale() : m_before(std::locale::global(std::locale(std::locale::classic(), new Punctuation))) {}
    ~CommaDecimalLocale() { std::locale::global(m_before); }
    CommaDecimalLocale(const CommaDecimalLocale&) = delete;
    CommaDecimalLocale& operator=(const CommaDecimalLocale&) = delete;

private:
    struct Punctuation : std::numpunct<char> {
        char do_decimal_point() const override { return ','; }
        char do_thousands_sep() const override { return '.'; }
        std::string do_grouping() const override { return "\3"; }
    };
    std::locale m_before;
};

} // namespace ModelTesting
