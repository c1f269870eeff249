// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include <climits>
#include <string>
#include <type_traits>

#include <gtest/gtest.h>

#include "dmwrite/Importer.h"

namespace {

using Import::E_ColumnIndex;
using Import::E_HBColumnIndex;

// Hosts store and pass both as int.
static_assert(std::is_same_v<std::underlying_type_t<E_ColumnIndex>, int>);
static_assert(std::is_same_v<std::underlying_type_t<E_HBColumnIndex>, int>);

// Owners of an error text and a target node cannot be copied.
static_assert(!std::is_copy_constructible_v<Importer> && !std::is_copy_assignable_v<Importer>);

struct Column {
    int number;
    const char* name;
};

constexpr Column kColumns[] = {
    {Import::eColEmpfaenger, "Empfaenger"},
    {Import::eColKategorie, "Kategorie"},
    {Import::eColUnterkategorie, "Unterkategorie"},
    {Import::eColVerwendungszweck, "Verwendungszweck"},
    {Import::eColBuchungstext, "Buchungstext"},
    {Import::eColDatum, "Datum"},
    {Import::eColBetrag, "Betrag"},
};

constexpr Column kBookingColumns[] = {
    {Import::eHBBuchungsID, "BuchungsID"},
    {Import::eHBBuchungsDatum, "BuchungsDatum"},
    {Import::eHBValutaDatum, "ValutaDatum"},
    {Import::eHBGVCode, "GVCode"},
    {Import::eHBBetrag, "Betrag"},
    {Import::eHBVerwendungszweck, "Verwendungszweck"},
    {Import::eHBSteuerrelevant, "Steuerrelevant"},
    {Import::eHBEmpfaenger, "Empfaenger"},
    {Import::eHBNotiz, "Notiz"},
    {Import::eHBKategorie, "Kategorie"},
};

constexpr int kNoColumns[] = {-1, -7, INT_MIN, INT_MAX, 1000, 99};

TEST(ColumnCatalogueTest, NumbersAreThoseThatHostsStore) {
    int number = 0;
    for (const Column& column : kColumns)
        EXPECT_EQ(column.number, number++) << column.name;
    EXPECT_EQ(Import::eColNone, 7);
    number = 0;
    for (const Column& column : kBookingColumns)
        EXPECT_EQ(column.number, number++) << column.name;
    EXPECT_EQ(number, 10);
}

TEST(ColumnCatalogueTest, EveryColumnHasItsFieldName) {
    const Importer importer;
    for (const Column& column : kColumns)
        EXPECT_STREQ(importer.getColumnNameForIndex(static_cast<E_ColumnIndex>(column.number)), column.name);
}

TEST(ColumnCatalogueTest, NumberOutsideTheCatalogueHasNoName) {
    const Importer importer;
    EXPECT_EQ(importer.getColumnNameForIndex(Import::eColNone), nullptr);
    EXPECT_EQ(importer.getColumnNameForIndex(static_cast<E_ColumnIndex>(8)), nullptr);
    for (const int number : kNoColumns)
        EXPECT_EQ(importer.getColumnNameForIndex(static_cast<E_ColumnIndex>(number)), nullptr) << number;
}

TEST(ColumnCatalogueTest, EveryBookingColumnHasItsFieldName) {
    const Importer importer;
    for (const Column& column : kBookingColumns)
        EXPECT_STREQ(importer.getColumnNameForHBIndex(static_cast<E_HBColumnIndex>(column.number)), column.name);
}

TEST(ColumnCatalogueTest, NumberOutsideTheBookingCatalogueHasNoName) {
    const Importer importer;
    EXPECT_EQ(importer.getColumnNameForHBIndex(static_cast<E_HBColumnIndex>(10)), nullptr);
    for (const int number : kNoColumns)
        EXPECT_EQ(importer.getColumnNameForHBIndex(static_cast<E_HBColumnIndex>(number)), nullptr) << number;
}

TEST(ColumnCatalogueTest, EveryNameHasItsColumn) {
    const Importer importer;
    for (const Column& column : kColumns)
        EXPECT_EQ(importer.getColumnIndexForName(std::string(column.name).c_str()), column.number);
}

TEST(ColumnCatalogueTest, NamesAreComparedByteForByte) {
    const Importer importer;
    for (const char* name : {"betrag", "BETRAG", "Betrag ", " Betrag", "Betra", "Betrags", "", "Empf\xE4nger",
                             "Empf\xC3\xA4nger", "BuchungsID", "Notiz", "DatumBetrag"})
        EXPECT_EQ(importer.getColumnIndexForName(name), Import::eColNone) << '"' << name << '"';
}

TEST(ColumnCatalogueTest, FreshImporterHasNoErrorText) {
    Importer importer;
    EXPECT_STREQ(importer.getErrorMsg(), "");
    EXPECT_EQ(importer.target(), nullptr);
    importer.setError("Ung\xFCltiger Datensatz");
    EXPECT_STREQ(importer.getErrorMsg(), "Ung\xFCltiger Datensatz");
}

} // namespace
