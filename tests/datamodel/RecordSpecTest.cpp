// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "datamodel/RecordSpec.h"

#include <gtest/gtest.h>
#include <optional>
#include <stdexcept>
#include <string>
#include <utility>

#include "datamodel/TableSpec.h"

namespace {

std::vector<FieldSpec> numberedFields(std::size_t count) {
    std::vector<FieldSpec> fields;
    for (std::size_t i = 0; i < count; ++i)
        fields.push_back({"Feld" + std::to_string(i), DataType::eInteger});
    return fields;
}

std::vector<TableSpec> tablesNamed(std::initializer_list<const char*> names) {
    std::vector<TableSpec> tables;
    for (const char* name : names)
        tables.push_back({name, RecordSpec({}, {})});
    return tables;
}

TEST(RecordSpec, FindsFieldsAndTablesByName) {
    const RecordSpec spec({{"Eins", DataType::eInteger}, {"Zwei", DataType::eString}}, tablesNamed({"Drei", "Vier"}));
    EXPECT_EQ(spec.fieldIndex("Eins"), 0U);
    EXPECT_EQ(spec.fieldIndex("Zwei"), 1U);
    EXPECT_EQ(spec.fieldIndex("Drei"), std::nullopt) << "a table is no field";
    EXPECT_EQ(spec.tableIndex("Drei"), 0U);
    EXPECT_EQ(spec.tableIndex("Vier"), 1U);
    EXPECT_EQ(spec.tableIndex("Eins"), std::nullopt) << "a field is no table";
    EXPECT_EQ(spec.position("Zwei"), 1U);
    EXPECT_EQ(spec.position("Drei"), 2U) << "tables follow the fields";
}

TEST(RecordSpec, ComparesNamesByteForByte) {
    const RecordSpec spec({{"Betrag", DataType::eCurrency}}, {});
    for (const char* name : {"betrag", "BETRAG", "Betrag ", "Betra", "Betragx", "Bxtrag", ""})
        EXPECT_EQ(spec.fieldIndex(name), std::nullopt) << name;
}

TEST(RecordSpec, NamesOfOneHashAreToldApart) {
    // Alike in length and in first, middle and last character.
    const RecordSpec spec({{"aXcYe", DataType::eInteger}, {"aYcXe", DataType::eInteger}, {"aZcZe", DataType::eInteger}},
                          {});
    EXPECT_EQ(spec.fieldIndex("aXcYe"), 0U);
    EXPECT_EQ(spec.fieldIndex("aYcXe"), 1U);
    EXPECT_EQ(spec.fieldIndex("aZcZe"), 2U);
    EXPECT_EQ(spec.fieldIndex("aWcWe"), std::nullopt);
    // Alike in their first six characters.
    const RecordSpec days({{"Buchungstag", DataType::eDate}, {"Buchungstext", DataType::eString}}, {});
    EXPECT_EQ(days.fieldIndex("Buchungstag"), 0U);
    EXPECT_EQ(days.fieldIndex("Buchungstext"), 1U);
    EXPECT_EQ(days.fieldIndex("Buchun"), std::nullopt);
}

TEST(RecordSpec, FindsNamesThatNeedNotBeMeasured) {
    const RecordSpec spec({{"Tag", DataType::eDate}, {"Buchungstag", DataType::eDate}}, tablesNamed({"Zeilen"}));
    for (const char* name : {"Tag", "Buchungstag", "Zeilen", "Tage", "Ta", "Buchungs", ""})
        EXPECT_EQ(spec.position(name), spec.position(std::string_view(name))) << name;
    EXPECT_EQ(spec.position("Zeilen"), 2U);
}

TEST(RecordSpec, HoldsUpTo255Children) {
    const RecordSpec spec(numberedFields(254), tablesNamed({"Tabelle"}));
    for (std::size_t i = 0; i < 254; ++i)
        EXPECT_EQ(spec.fieldIndex("Feld" + std::to_string(i)), i);
    EXPECT_EQ(spec.tableIndex("Tabelle"), 0U);
    EXPECT_EQ(spec.fieldIndex("Feld254"), std::nullopt);
    EXPECT_THROW(RecordSpec(numberedFields(256), {}), std::invalid_argument);
    EXPECT_THROW(RecordSpec(numberedFields(255), tablesNamed({"Tabelle"})), std::invalid_argument);
}

TEST(RecordSpec, RefusesNamesThatCannotBeAddressed) {
    EXPECT_THROW(RecordSpec({{"A", DataType::eInteger}, {"A", DataType::eString}}, {}), std::invalid_argument);
    EXPECT_THROW(RecordSpec({{"A", DataType::eInteger}}, tablesNamed({"A"})), std::invalid_argument);
    EXPECT_THROW(RecordSpec({}, tablesNamed({"T", "T"})), std::invalid_argument);
    EXPECT_THROW(RecordSpec({{"", DataType::eInteger}}, {}), std::invalid_argument);
    EXPECT_THROW(RecordSpec({{std::string("A\0B", 3), DataType::eInteger}}, {}), std::invalid_argument);
}

TEST(RecordSpec, WithoutChildrenFindsNothing) {
    RecordSpec spec({}, {});
    EXPECT_EQ(spec.position("x"), std::nullopt);
    EXPECT_EQ(spec.table("x"), nullptr);
}

TEST(RecordSpec, MovedSchemaIsFoundThroughItsNewOwnerOnly) {
    RecordSpec source(numberedFields(3), tablesNamed({"T"}));
    RecordSpec target(std::move(source));
    EXPECT_EQ(target.fieldIndex("Feld2"), 2U);
    EXPECT_EQ(target.tableIndex("T"), 0U);
    EXPECT_EQ(source.position("Feld2"), std::nullopt); // NOLINT(bugprone-use-after-move): that is the question

    RecordSpec assigned({}, {});
    assigned = std::move(target);
    EXPECT_EQ(assigned.fieldIndex("Feld1"), 1U);
}

TEST(RecordSpec, SwitchesOnlyDateFields) {
    RecordSpec spec({{"Tag", DataType::eDate}, {"Zahl", DataType::eInteger}}, {});
    EXPECT_FALSE(spec.fields()[0].takesZeroDate);
    spec.setTakesZeroDate("Tag", true);
    EXPECT_TRUE(spec.fields()[0].takesZeroDate);
    spec.setTakesZeroDate("Tag", false);
    EXPECT_FALSE(spec.fields()[0].takesZeroDate);
    EXPECT_THROW(spec.setTakesZeroDate("Zahl", true), std::invalid_argument);
    EXPECT_THROW(spec.setTakesZeroDate("Tage", true), std::invalid_argument);
}

} // namespace
