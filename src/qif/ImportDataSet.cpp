// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include <array>
#include <charconv>
#include <cstddef>
#include <limits>

#include "framework/AssertTypeSizes.h"
#include "framework/Latin1.h"
#include "qif/ImportModuleQIF.h"

namespace {

constexpr int kDecimals = 2;

/// As printf's "%.2f", but under every locale with a "." and for every size.
std::string withTwoDecimals(double amount) {
    constexpr std::size_t kMostDigits = std::numeric_limits<double>::max_exponent10 + 1;
    std::array<char, kMostDigits + sizeof "-.00"> text{};
    char* const end =
        std::to_chars(text.data(), text.data() + text.size(), amount, std::chars_format::fixed, kDecimals).ptr;
    return std::string(text.data(), static_cast<std::size_t>(end - text.data()));
}

} // namespace

ImportModuleQIF::ImportDataSet::ImportDataSet() { SmartDate::m_useQIFSyntax = true; }

void ImportModuleQIF::ImportDataSet::clearRecord() {
    m_memo.clear();
    m_date.clear(); // assigning a fresh date would switch the QIF syntax off
    m_amount.clear();
    m_payee.clear();
    m_number.clear();
    m_category.clear();
    m_quantity.clear();
    m_price.clear();
    m_commission.clear();
    m_security.clear();
    m_budgetSum = 0.0;
}

void ImportModuleQIF::ImportDataSet::addBudget(double amount) {
    m_budgetSum += amount;
    m_amount = withTwoDecimals(m_budgetSum);
    // A negative term follows with no separator but its own sign.
    if (m_number.empty())
        m_number = "Summe aus:";
    else if (amount >= 0.0)
        m_number += " + ";
    m_number += DataType::makeCurrency(amount).asString(true, kDecimals);
}

void ImportModuleQIF::ImportDataSet::describeSecurity() {
    if (!m_memo.empty() || m_security.empty())
        return;
    m_memo = m_security + "   ";
    if (!m_quantity.empty())
        m_memo += m_quantity + " Stück "_latin1;
    if (!m_price.empty())
        m_memo += " a " + m_price;
    if (!m_commission.empty())
        m_memo += "  Nebenkosten: " + m_commission;
}
