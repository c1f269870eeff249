// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include <cmath>
#include <cstring>
#include <string>

#include "dmwrite/ImportIntoDMHelper.h"
#include "framework/datamodel_api/DMCurrency.h"
#include "qif/ImportModuleQIF.h"
#include "support/FuzzInput.h"
#include "support/FuzzTarget.h"
#include "support/require.h"

// One amount as a file has it.
namespace {

/// The library's conversions, without an import around them.
class Conversions : public ImportIntoDMHelper {};

bool same(const DataType& a, const DataType& b) {
    return a.kind() == b.kind() && a.getCurrency() == b.getCurrency() &&
           std::signbit(a.getCurrency()) == std::signbit(b.getCurrency());
}

void requireOnlyNumberCharactersCount(const Conversions& conversions, const std::string& text, double amount) {
    std::string kept;
    std::string spaced;
    for (const char c : text) {
        if (c != '\0' && std::strchr("0123456789.,-", c) != nullptr)
            kept += c;
        spaced += c;
        spaced += " EUR+'";
    }
    require(conversions.scanCurrency(kept.c_str()) == amount, "what is no part of a number does not count");
    require(conversions.scanCurrency(spaced.c_str()) == amount, "nor does what is put between");
}

void requireShownAsRead(const Conversions& conversions, const DataType& value) {
    const std::string shown = value.asString(true, 2);
    const DataType again = conversions.convertStringToDataType(Import::eColBetrag, shown.c_str());
    // Half a cent more than the largest amount shows one beyond it.
    if (again.kind() == DataType::eEmpty)
        return;
    require(again.kind() == DataType::eCurrency, "an amount stays one");
    require(again.asString(true, 2) == shown, "an amount is read back as it is shown");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
    static const Conversions conversions;
    std::string text = FuzzInput(bytes, size).text();

    const double amount = conversions.scanCurrency(text.c_str());
    require(!std::isnan(amount), "an amount is a number");
    requireOnlyNumberCharactersCount(conversions, text, amount);

    const DataType value = conversions.convertStringToDataType(Import::eColBetrag, text.c_str());
    const bool inBounds = amount >= DMCurrency::MIN_CURRENCY && amount <= DMCurrency::MAX_CURRENCY;
    require(value.kind() == (inBounds ? DataType::eCurrency : DataType::eEmpty), "bounds decide");
    require(same(value, conversions.convertStringToDataType(Import::eHBBetrag, text.c_str())),
            "both catalogues read amounts alike");
    require(same(value, conversions.convertStringToDataType("Betrag", text.c_str())), "by name or by number");
    if (inBounds) {
        require(value.getCurrency() == amount, "nothing is rounded");
        requireShownAsRead(conversions, value);
    }

    require(!std::isnan(ImportModuleQIF::qifCurrencytoDouble(text)) || text.find_first_of("nN") != std::string::npos,
            "a number is one in QIF, too");
    require(text.find(',') == std::string::npos, "commas are removed");
    return 0;
}
