// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include <memory>
#include <stdexcept>
#include <string>
#include <type_traits>

#include <gtest/gtest.h>

#include "architecture/VirtualSlot.h"
#include "datamodel/RowSource.h"
#include "datamodel/TableNode.h"
#include "dmwrite/SmartDate.h"
#include "framework/ImportExternData.h"
#include "homebanking/BankingXML.h"
#include "homebanking/HomeBankingFixture.h"
#include "homebanking/ImportHomeBankingData.h"
#include "support/TextImport.h"

namespace {

using namespace HomeBankingXml;

class HomeBankingFrontDoorTest : public HomeBankingFixture<ImportHomeBankingData> {};

TEST_F(HomeBankingFrontDoorTest, FreshDoorHasAnEmptyErrorText) { EXPECT_EQ(error(), ""); }

TEST_F(HomeBankingFrontDoorTest, OneDoorServesListsOfBothKindsOneAfterTheOther) {
    EXPECT_TRUE(updateAccounts(kontoliste(konto("100", "42", "Sparbuch"))));
    EXPECT_TRUE(importBookings(buchungsliste(buchung("1"))));
    EXPECT_FALSE(importBookings(buchungsliste("<x/>")));
    EXPECT_TRUE(updateAccounts(kontoliste(konto("10020030", "123456789", "Haushalt"))));
    EXPECT_TRUE(importBookings(buchungsliste(buchung("2") + buchung("3"))));
    EXPECT_EQ(accounts(), 2);
    EXPECT_EQ(bookings(), 3);
    EXPECT_EQ(account("NeueBuchungen"), "2");
    EXPECT_EQ(error(), "");
}

TEST_F(HomeBankingFrontDoorTest, FailuresReachTheHost) {
    EXPECT_FALSE(updateAccounts(kontoliste("")));
    EXPECT_EQ(error(), "Keine Konten vorhanden.");
    EXPECT_FALSE(importBookings(document("<buchungsliste>" + buchung("1") + "</buchungsliste>")));
    EXPECT_EQ(error(), "Unbekanntes Konto.");
}

TEST_F(HomeBankingFrontDoorTest, ErrorTextIsTheSameUntilItChanges) {
    ASSERT_FALSE(updateAccounts(kontoliste("")));
    const char* text = m_door.getErrorMsg();
    ASSERT_TRUE(importBookings(buchungsliste(buchung("1"))));
    EXPECT_EQ(m_door.getErrorMsg(), text);
    EXPECT_STREQ(text, "Keine Konten vorhanden.");
}

TEST(HomeBankingSlotsTest, OfTheImporterAreThoseOfItsBase) {
    EXPECT_EQ(VirtualSlot::count<BankingXML>(), 3);
    EXPECT_EQ(VirtualSlot::of(&BankingXML::getErrorMsg), 2);
    EXPECT_TRUE((std::is_base_of_v<ImportIntoDMHelper, BankingXML>));
    EXPECT_TRUE(std::has_virtual_destructor_v<BankingXML>);
}

TEST(HomeBankingSlotsTest, OfTheFrontDoorAreItsDestructorAlone) {
    EXPECT_EQ(VirtualSlot::count<ImportHomeBankingData>(), 2);
    EXPECT_TRUE(std::has_virtual_destructor_v<ImportHomeBankingData>);
    EXPECT_EQ(sizeof(ImportHomeBankingData), 2 * sizeof(void*)) << "its table, and the importer it owns";
}

/// A store that breaks down when its rows are asked for.
class BrokenSource : public RowSource {
public:
    bool load(unsigned /*row*/, RecordNode& /*record*/) override { throw std::runtime_error("disk gone"); }
};

/// A store that has lost its rows.
class EmptySource : public RowSource {
public:
    bool load(unsigned /*row*/, RecordNode& /*record*/) override { return false; }
};

TEST_F(HomeBankingFrontDoorTest, NoExceptionOfTheHostPassesThrough) {
    const FinanceModel model;
    dynamic_cast<TableNode*>(model.node("HomeBankingImport"))->attach(std::make_shared<BrokenSource>(), 1);
    EXPECT_FALSE(m_door.updateAccountList(input(kontoliste(konto("1", "2", "x")), model)));
    EXPECT_FALSE(m_door.importAccountingEntries(input(buchungsliste(buchung("1")), model)));
    EXPECT_EQ(error(), "");
}

TEST_F(HomeBankingFrontDoorTest, RowsThatCannotBeReadAreNoAccounts) {
    const FinanceModel model;
    dynamic_cast<TableNode*>(model.node("HomeBankingImport"))->attach(std::make_shared<EmptySource>(), 2);
    EXPECT_FALSE(m_door.importAccountingEntries(input(buchungsliste(buchung("1")), model)));
    EXPECT_EQ(error(), "Unbekanntes Konto.");
    EXPECT_TRUE(m_door.updateAccountList(input(kontoliste("<konto/>" + konto("1", "2", "x")), model)));
    EXPECT_EQ(model.rows("HomeBankingImport"), 4);
    EXPECT_EQ(model.text("HomeBankingImport/4/Bezeichnung"), "x");
}

// Dates: nothing on this path resets what is class-wide, and hosts rely on it.

TEST_F(HomeBankingFrontDoorTest, DateOrderOfAnEarlierFileImportReachesThisPath) {
    const FinanceModel other;
    ImportExternData files;
    ColumnAssignment assignment = {{{0, Import::eColDatum}}, 1};
    const TemporaryFile csv("12/31/2025\n", "monat-zuerst.csv");
    ImportInputParams params;
    params.m_fileName = csv.path();
    params.m_targetNode = other.root();
    ASSERT_EQ(files.importFile(params, ';', &assignment), 1);

    EXPECT_TRUE(importBookings(buchungsliste(buchung("1", "<datum>03/04/2026</datum>"))));
    EXPECT_EQ(account("DataSets/1/BuchungsDatum"), "04.03.2026");
    EXPECT_FALSE(importBookings(buchungsliste(buchung("2", "<datum>31.12.2025</datum>"))))
        << "the other order is refused";
}

TEST_F(HomeBankingFrontDoorTest, DateOrderOfOneListReachesTheNext) {
    EXPECT_TRUE(importBookings(buchungsliste(buchung("1", "<datum>12/31/2025</datum>"))));
    ImportHomeBankingData next;
    EXPECT_TRUE(next.importAccountingEntries(input(buchungsliste(buchung("2", "<datum>03/04/2026</datum>")))));
    EXPECT_EQ(account("DataSets/2/BuchungsDatum"), "04.03.2026");
}

TEST_F(HomeBankingFrontDoorTest, HostThatResetsTheDateOrderHasEveryListReadOnItsOwn) {
    EXPECT_TRUE(importBookings(buchungsliste(buchung("1", "<datum>12/31/2025</datum>"))));
    SmartDate::sm_order = 0;
    EXPECT_TRUE(importBookings(buchungsliste(buchung("2", "<datum>03/04/2026</datum>"))));
    EXPECT_EQ(account("DataSets/2/BuchungsDatum"), "03.04.2026");
}

TEST_F(HomeBankingFrontDoorTest, CenturyWindowIsTheOneInForce) {
    SmartDate::sm_CenturyWindowStart = 80;
    EXPECT_TRUE(importBookings(buchungsliste(buchung("1", "<datum>01.02.75</datum>"))));
    EXPECT_EQ(account("DataSets/1/BuchungsDatum"), "01.02.2075");
}

} // namespace
