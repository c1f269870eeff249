// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "dmwrite/ImportIntoDMHelper.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstring>

#include "dmwrite/AmountText.h"
#include "dmwrite/IntegerCounter.h"
#include "dmwrite/NodeAccess.h"
#include "dmwrite/SeesionInfo.h"
#include "dmwrite/SmartDate.h"
#include "framework/AssertTypeSizes.h"

namespace {

enum class Conversion { text, date, amount, flag };

struct Column {
    const char* name;
    Conversion conversion;
};

// Indexed by Import::E_ColumnIndex.
constexpr std::array<Column, 7> kColumns = {{
    {"Empfaenger", Conversion::text},
    {"Kategorie", Conversion::text},
    {"Unterkategorie", Conversion::text},
    {"Verwendungszweck", Conversion::text},
    {"Buchungstext", Conversion::text},
    {"Datum", Conversion::date},
    {"Betrag", Conversion::amount},
}};
static_assert(kColumns.size() == Import::eColNone);

// Indexed by Import::E_HBColumnIndex.
constexpr std::array<Column, 10> kBookingColumns = {{
    {"BuchungsID", Conversion::text},
    {"BuchungsDatum", Conversion::date},
    {"ValutaDatum", Conversion::date},
    {"GVCode", Conversion::text},
    {"Betrag", Conversion::amount},
    {"Verwendungszweck", Conversion::text},
    {"Steuerrelevant", Conversion::flag},
    {"Empfaenger", Conversion::text},
    {"Notiz", Conversion::text},
    {"Kategorie", Conversion::text},
}};
static_assert(kBookingColumns.size() == Import::eHBKategorie + 1);

template <std::size_t size>
const Column* find(const std::array<Column, size>& columns, int index) {
    return index >= 0 && static_cast<std::size_t>(index) < size ? &columns[static_cast<std::size_t>(index)] : nullptr;
}

DataType convert(const Column* column, const char* text) {
    DataType value;
    if (column == nullptr)
        return value;
    switch (column->conversion) {
    case Conversion::text:
        value = text;
        break;
    case Conversion::date: {
        SmartDate date;
        date.parse(text);
        value = date.getDate();
        break;
    }
    case Conversion::amount: {
        const double amount = AmountText::read(text);
        if (amount >= DMCurrency::MIN_CURRENCY && amount <= DMCurrency::MAX_CURRENCY)
            value = DataType::makeCurrency(amount);
        break;
    }
    case Conversion::flag:
        value = DataType::makeBoolean(std::strcmp(text, "1") == 0);
        break;
    }
    return value;
}

constexpr const char* kUniqueIDCounter = "NextUniqueID";

} // namespace

ImportIntoDMHelper::ImportIntoDMHelper() = default;
ImportIntoDMHelper::~ImportIntoDMHelper() = default;

const char* ImportIntoDMHelper::getErrorMsg() const { return m_errorMsg.c_str(); }

const char* ImportIntoDMHelper::getColumnNameForIndex(Import::E_ColumnIndex index) const {
    const Column* column = find(kColumns, index);
    return column != nullptr ? column->name : nullptr;
}

const char* ImportIntoDMHelper::getColumnNameForHBIndex(Import::E_HBColumnIndex index) const {
    const Column* column = find(kBookingColumns, index);
    return column != nullptr ? column->name : nullptr;
}

Import::E_ColumnIndex ImportIntoDMHelper::getColumnIndexForName(const char* name) const {
    // Nearly every name comes from this table, so that its address is enough.
    const auto* found =
        std::find_if(kColumns.begin(), kColumns.end(), [name](const Column& column) { return column.name == name; });
    if (found == kColumns.end())
        found = std::find_if(kColumns.begin(), kColumns.end(),
                             [name](const Column& column) { return std::strcmp(column.name, name) == 0; });
    return static_cast<Import::E_ColumnIndex>(found - kColumns.begin());
}

DataType ImportIntoDMHelper::convertStringToDataType(Import::E_ColumnIndex index, const char* text) const {
    return convert(find(kColumns, index), text);
}

DataType ImportIntoDMHelper::convertStringToDataType(Import::E_HBColumnIndex index, const char* text) const {
    return convert(find(kBookingColumns, index), text);
}

DataType ImportIntoDMHelper::convertStringToDataType(const char* columnName, const char* text) const {
    return convertStringToDataType(getColumnIndexForName(columnName), text);
}

double ImportIntoDMHelper::scanCurrency(const char* text) const { return AmountText::read(text); }

DataType ImportIntoDMHelper::getNextUniqueID() const {
    Node* counter = m_targetNode != nullptr ? m_targetNode->getNode(NDX(kUniqueIDCounter)) : nullptr;
    if (counter == nullptr)
        return {};
    const DataType current = counter->getValue();
    counter->setValue(IntegerCounter::next(current), NDX(), 0);
    return current;
}

bool ImportIntoDMHelper::setUniqueID(Node* dataSet) const {
    const DataType uniqueID = getNextUniqueID(); // first, so that the counter moves on whatever the record takes
    return NodeAccess::assignField(dataSet, "UniqueID", uniqueID);
}

void ImportIntoDMHelper::writeLastImportDate(const SeesionInfo& session) const {
    NodeAccess::assignField(m_targetNode, "LetztesImportDatum", session.m_importDate);
}

void ImportIntoDMHelper::writeNewDataExists() const {
    NodeAccess::assignField(m_targetNode, "NeueDatenVorhanden", DataType::makeBoolean(true));
}
