// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include <string>

#include <gtest/gtest.h>
#include <QtXml/QDomNode>

#include "homebanking/BankingXML.h"
#include "homebanking/HomeBankingFixture.h"
#include "support/CountingNode.h"

// Trees of hosts that lack a table or a field, or refuse a value.
namespace {

using namespace HomeBankingXml;

const std::string kTwoAccounts = kontoliste(konto("10020030", "123456789", "Haushalt") + konto("1", "2", "Neu"));
const std::string kBookings = buchungsliste(buchung("1") + buchung("2"));

class MissingNodesTest : public SmartDateFixture {
protected:
    static XmlImportData input(const std::string& document, Node* root) {
        XmlImportData data;
        data.setImportTargetNode(root);
        data.setXmlContent(document.data(), document.size());
        return data;
    }
    bool updateAccounts(Node* root) { return m_door.updateAccountList(input(kTwoAccounts, root)); }
    bool importBookings(Node* root) { return m_door.importAccountingEntries(input(kBookings, root)); }
    std::string error() const { return m_door.getErrorMsg(); }

    /// A model with the schema, and the account of the bookings in row 1.
    static FinanceModel modelOf(const SchemaDraft& schema) {
        FinanceModel model(schema);
        dynamic_cast<NodeTable*>(model.node("HomeBankingImport"))->create(1);
        for (const auto& [field, text] : {std::pair("BLZ", "10020030"), std::pair("KtoNummer", "123456789")}) {
            if (Node* node = model.node(std::string("HomeBankingImport/1/") + field))
                node->setValue(textValue(text), NDX(), 0);
        }
        return model;
    }

    static SchemaDraft& accountRow(SchemaDraft& schema) { return schema.table("HomeBankingImport"); }
    static SchemaDraft& bookingRow(SchemaDraft& schema) { return accountRow(schema).table("DataSets"); }

    BankingXML m_door;
};

TEST_F(MissingNodesTest, NoTarget) {
    EXPECT_FALSE(updateAccounts(nullptr));
    EXPECT_EQ(error(), "Keine Konten vorhanden.");
    EXPECT_FALSE(importBookings(nullptr));
    EXPECT_EQ(error(), "Unbekanntes Konto.");
}

TEST_F(MissingNodesTest, NoAccountTable) {
    const FinanceModel model(SchemaDraft::finance().without("HomeBankingImport"));
    EXPECT_FALSE(updateAccounts(model.root()));
    EXPECT_EQ(error(), "Keine Konten vorhanden.");
    EXPECT_FALSE(importBookings(model.root()));
    EXPECT_EQ(error(), "Unbekanntes Konto.");
    EXPECT_EQ(m_door.getAccountsBaseNode(), nullptr);
    EXPECT_EQ(m_door.createNewAccount("1", "2"), nullptr);
    EXPECT_FALSE(m_door.importKonto(QDomNode()));
}

TEST_F(MissingNodesTest, CountOfAnEarlierListIsForgottenFirst) {
    const FinanceModel whole;
    ASSERT_TRUE(updateAccounts(whole.root()));
    const FinanceModel without(SchemaDraft::finance().without("HomeBankingImport"));
    EXPECT_FALSE(updateAccounts(without.root()));
    EXPECT_EQ(error(), "Keine Konten vorhanden.");
}

TEST_F(MissingNodesTest, AccountTableThatIsNoTable) {
    SchemaDraft schema = SchemaDraft::finance();
    schema.without("HomeBankingImport").fields.push_back({"HomeBankingImport", DataType::eString});
    const FinanceModel model(schema);
    EXPECT_FALSE(updateAccounts(model.root()));
    EXPECT_EQ(error(), "Keine Konten vorhanden.");
    EXPECT_FALSE(importBookings(model.root()));
    EXPECT_EQ(error(), "Unbekanntes Konto.");
}

TEST_F(MissingNodesTest, TargetThatIsNoRecord) {
    CountingNode leaf;
    EXPECT_FALSE(updateAccounts(&leaf));
    EXPECT_EQ(leaf.prepared(), 0) << "rows of this path are not announced to the root";
}

TEST_F(MissingNodesTest, FieldMissingInAnAccountIsSkipped) {
    for (const char* field : {"ImportTyp", "Bezeichnung", "ExistsInHB"}) {
        for (const bool refused : {false, true}) {
            SCOPED_TRACE(field);
            SchemaDraft schema = SchemaDraft::finance();
            refused ? accountRow(schema).refusing(field) : accountRow(schema).without(field);
            const FinanceModel model = modelOf(schema);
            EXPECT_TRUE(updateAccounts(model.root()));
            ASSERT_EQ(model.rows("HomeBankingImport"), 2);
            for (const auto& [other, text] : {std::pair("ImportTyp", "6"), std::pair("Bezeichnung", "Neu"),
                                              std::pair("ExistsInHB", "Ja"), std::pair("BLZ", "1")}) {
                if (std::string(other) != field) {
                    EXPECT_EQ(model.text(std::string("HomeBankingImport/2/") + other), text) << other;
                }
            }
        }
    }
}

TEST_F(MissingNodesTest, AccountWithoutBankCodeIsFoundByAnEmptyOneAlone) {
    SchemaDraft schema = SchemaDraft::finance();
    accountRow(schema).without("BLZ");
    const FinanceModel model = modelOf(schema);
    EXPECT_TRUE(updateAccounts(model.root()));
    EXPECT_EQ(model.rows("HomeBankingImport"), 3) << "nothing fits, so both are made";
    EXPECT_FALSE(importBookings(model.root()));
    EXPECT_EQ(error(), "Unbekanntes Konto.");
    EXPECT_EQ(m_door.getAccount("", "123456789"), model.node("HomeBankingImport/1"));
}

TEST_F(MissingNodesTest, AccountWithoutNumberIsFoundByAnEmptyOneAlone) {
    SchemaDraft schema = SchemaDraft::finance();
    accountRow(schema).without("KtoNummer");
    const FinanceModel model = modelOf(schema);
    EXPECT_TRUE(updateAccounts(model.root()));
    EXPECT_EQ(model.rows("HomeBankingImport"), 3);
    EXPECT_EQ(m_door.getAccount("10020030", ""), model.node("HomeBankingImport/1"));
}

TEST_F(MissingNodesTest, ColumnMissingInABookingFailsTheBookingThatHasIt) {
    for (const char* column : {"BuchungsID", "Betrag"}) {
        for (const bool refused : {false, true}) {
            SCOPED_TRACE(column);
            SchemaDraft schema = SchemaDraft::finance();
            refused ? bookingRow(schema).refusing(column) : bookingRow(schema).without(column);
            const FinanceModel model = modelOf(schema);
            EXPECT_FALSE(importBookings(model.root()));
            EXPECT_EQ(error(), "");
            EXPECT_EQ(model.rows("HomeBankingImport/1/DataSets"), 1) << "the row stays, and ends the list";
            EXPECT_EQ(model.kind("HomeBankingImport/1/NeueBuchungen"), DataType::eEmpty);
        }
    }
}

TEST_F(MissingNodesTest, ColumnMissingInABookingIsNotMissedByThoseWithoutIt) {
    SchemaDraft schema = SchemaDraft::finance();
    bookingRow(schema).without("Notiz").without("GVCode");
    EXPECT_TRUE(importBookings(modelOf(schema).root()));
}

TEST_F(MissingNodesTest, BookingWithoutUniqueIdFailsAndStillUsesOneUp) {
    SchemaDraft schema = SchemaDraft::finance();
    bookingRow(schema).without("UniqueID");
    const FinanceModel model = modelOf(schema);
    EXPECT_FALSE(importBookings(model.root()));
    EXPECT_EQ(model.rows("HomeBankingImport/1/DataSets"), 1);
    EXPECT_EQ(model.text("HomeBankingImport/1/DataSets/1/Betrag"), "1,00");
    EXPECT_EQ(model.integer("NextUniqueID"), 2);
}

TEST_F(MissingNodesTest, NoCounterOfUniqueIds) {
    const FinanceModel model = modelOf(SchemaDraft::finance().without("NextUniqueID"));
    EXPECT_FALSE(importBookings(model.root()));
    EXPECT_EQ(model.rows("HomeBankingImport/1/DataSets"), 1);
    EXPECT_EQ(model.kind("HomeBankingImport/1/DataSets/1/UniqueID"), DataType::eEmpty);
}

TEST_F(MissingNodesTest, AccountWithoutATableOfBookings) {
    SchemaDraft schema = SchemaDraft::finance();
    accountRow(schema).without("DataSets");
    const FinanceModel model = modelOf(schema);
    EXPECT_FALSE(importBookings(model.root()));
    EXPECT_EQ(error(), "");
    EXPECT_EQ(m_door.createNewDataSet(model.node("HomeBankingImport/1")), nullptr);
    EXPECT_EQ(m_door.createNewDataSet(nullptr), nullptr);
}

struct BookkeepingCase {
    const char* field; ///< missing or refused
    bool refused;
    bool written;       ///< what writeImportAccountInfo returns
    const char* before; ///< written before it, or null
    const char* behind; ///< not written any more, or null
};

constexpr BookkeepingCase kBookkeeping[] = {
    {"LetztesImportDatum", false, false, nullptr, "LetzteBuchungsId"},
    {"LetztesImportDatum", true, false, nullptr, "LetzteBuchungsId"},
    {"LetzteBuchungsId", false, false, "LetztesImportDatum", "NeueBuchungen"},
    {"LetzteBuchungsId", true, false, "LetztesImportDatum", "NeueBuchungen"},
    {"NeueBuchungen", false, false, "LetzteBuchungsId", nullptr},
    {"NeueBuchungen", true, true, "LetzteBuchungsId", nullptr},
};

TEST_F(MissingNodesTest, BookkeepingStopsAtAMissingOrRefusedFieldAndIsNoFailureOfTheImport) {
    for (const BookkeepingCase& test : kBookkeeping) {
        SCOPED_TRACE(std::string(test.field) + (test.refused ? " refused" : " missing"));
        SchemaDraft schema = SchemaDraft::finance();
        test.refused ? accountRow(schema).refusing(test.field) : accountRow(schema).without(test.field);
        const FinanceModel model = modelOf(schema);
        const std::string account = "HomeBankingImport/1/";
        EXPECT_TRUE(importBookings(model.root()));
        EXPECT_EQ(model.rows(account + "DataSets"), 2);
        if (test.before != nullptr) {
            EXPECT_NE(model.kind(account + test.before), DataType::eEmpty) << test.before;
        }
        if (test.behind != nullptr) {
            EXPECT_EQ(model.kind(account + test.behind), DataType::eEmpty) << test.behind;
        }
        EXPECT_EQ(m_door.writeImportAccountInfo(model.node("HomeBankingImport/1")), test.written);
    }
}

TEST_F(MissingNodesTest, MissingBookingIdFieldIsNotMissedWithoutAnId) {
    SchemaDraft schema = SchemaDraft::finance();
    accountRow(schema).without("LetzteBuchungsId");
    const FinanceModel model = modelOf(schema);
    const std::string list = buchungsliste("<buchung><betrag>1,00</betrag></buchung>");
    EXPECT_TRUE(m_door.importAccountingEntries(input(list, model.root())));
    EXPECT_EQ(model.text("HomeBankingImport/1/NeueBuchungen"), "1");
}

TEST_F(MissingNodesTest, NoAccountKeepsNoBooks) { EXPECT_FALSE(m_door.writeImportAccountInfo(nullptr)); }

} // namespace
