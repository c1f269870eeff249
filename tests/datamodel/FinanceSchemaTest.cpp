// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "datamodel/FinanceSchema.h"

#include <gtest/gtest.h>
#include <string>
#include <vector>

#include "datamodel/TableSpec.h"

namespace {

struct Field {
    std::string name;
    DataType::E_Kind kind;
    bool takesZeroDate = false;
};

void expectFields(const RecordSpec& spec, const std::vector<Field>& expected) {
    ASSERT_EQ(spec.fields().size(), expected.size());
    for (std::size_t i = 0; i < expected.size(); ++i) {
        EXPECT_EQ(spec.fields()[i].name, expected[i].name);
        EXPECT_EQ(spec.fields()[i].kind, expected[i].kind) << expected[i].name;
        EXPECT_EQ(spec.fields()[i].takesZeroDate, expected[i].takesZeroDate) << expected[i].name;
    }
}

constexpr auto kInteger = DataType::eInteger;
constexpr auto kCurrency = DataType::eCurrency;
constexpr auto kString = DataType::eString;
constexpr auto kDate = DataType::eDate;
constexpr auto kBoolean = DataType::eBoolean;

TEST(FinanceSchema, RootHoldsCountersMarkersAndTables) {
    RecordSpec root = makeFinanceSchema();
    expectFields(root, {{"NextImportID", kInteger},
                        {"NextUniqueID", kInteger},
                        {"LetztesImportDatum", kDate},
                        {"NeueDatenVorhanden", kBoolean}});
    ASSERT_EQ(root.tables().size(), 4U);
    EXPECT_EQ(root.tables()[0].name, "DataSets");
    EXPECT_EQ(root.tables()[1].name, "Importsessions");
    EXPECT_EQ(root.tables()[2].name, "HomeBankingImport");
    EXPECT_EQ(root.tables()[3].name, "Buchungslisten");
}

TEST(FinanceSchema, RecordsOfFileImportsMayBeUndated) {
    RecordSpec root = makeFinanceSchema();
    const RecordSpec& row = root.table("DataSets")->row;
    expectFields(row, {{"Empfaenger", kString},
                       {"Kategorie", kString},
                       {"Unterkategorie", kString},
                       {"Verwendungszweck", kString},
                       {"Buchungstext", kString},
                       {"Datum", kDate, true},
                       {"Betrag", kCurrency},
                       {"ImportID", kInteger},
                       {"UniqueID", kInteger},
                       {"Zeile", kInteger},
                       {"Geaendert", kBoolean}});
    EXPECT_TRUE(row.tables().empty());
}

TEST(FinanceSchema, SessionsAreDated) {
    RecordSpec root = makeFinanceSchema();
    const RecordSpec& row = root.table("Importsessions")->row;
    expectFields(row, {{"ImportDatum", kDate},
                       {"ImportInfo", kString},
                       {"ImportID", kInteger},
                       {"ImportTyp", kInteger},
                       {"ImportFileName", kString},
                       {"Pruefsumme", kString},
                       {"Datensaetze", kInteger},
                       {"Abgelehnt", kInteger},
                       {"Bekannt", kInteger},
                       {"Summe", kCurrency},
                       {"ErsterTag", kDate},
                       {"LetzterTag", kDate},
                       {"Zurueckgenommen", kBoolean}});
    EXPECT_TRUE(row.tables().empty());
}

TEST(FinanceSchema, AccountsHoldTheirBookings) {
    RecordSpec root = makeFinanceSchema();
    RecordSpec& account = root.table("HomeBankingImport")->row;
    expectFields(account, {{"BLZ", kString},
                           {"KtoNummer", kString},
                           {"ImportTyp", kInteger},
                           {"Bezeichnung", kString},
                           {"ExistsInHB", kBoolean},
                           {"LetztesImportDatum", kDate},
                           {"LetzteBuchungsId", kString},
                           {"NeueBuchungen", kInteger}});
    ASSERT_EQ(account.tables().size(), 1U);
    ASSERT_NE(account.table("DataSets"), nullptr);
    const RecordSpec& booking = account.table("DataSets")->row;
    expectFields(booking, {{"BuchungsID", kString},
                           {"BuchungsDatum", kDate},
                           {"ValutaDatum", kDate},
                           {"GVCode", kString},
                           {"Betrag", kCurrency},
                           {"Verwendungszweck", kString},
                           {"Steuerrelevant", kBoolean},
                           {"Empfaenger", kString},
                           {"Notiz", kString},
                           {"Kategorie", kString},
                           {"UniqueID", kInteger}});
    EXPECT_TRUE(booking.tables().empty());
}

} // namespace
