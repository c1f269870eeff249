// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "datamodel/DataManager.h"

#include <gtest/gtest.h>

#include "datamodel/DataModel.h"
#include "datamodel/ModelTesting.h"
#include "datamodel/TableSpec.h"

namespace {

using ModelTesting::assign;
using ModelTesting::tableOf;

TEST(DataManager, FreshTreeCountsFromOneAndIsOtherwiseEmpty) {
    DataManager manager;
    Node* root = manager.root();
    for (const char* counter : {"NextImportID", "NextUniqueID"}) {
        EXPECT_EQ(root->getNode(NDX(counter))->getValue().kind(), DataType::eInteger) << counter;
        EXPECT_EQ(root->getNode(NDX(counter))->getValue().getInt(), 1) << counter;
    }
    for (const char* marker : {"LetztesImportDatum", "NeueDatenVorhanden"})
        EXPECT_EQ(root->getNode(NDX(marker))->getValue().kind(), DataType::eEmpty) << marker;
    for (const char* name : {"DataSets", "Importsessions", "HomeBankingImport"}) {
        ASSERT_NE(tableOf(root, name), nullptr) << name;
        EXPECT_EQ(tableOf(root, name)->getNodeCount(), 0) << name;
    }
}

TEST(DataManager, FreshTreeIsAllToBeStored) {
    DataManager manager;
    EXPECT_TRUE(manager.model().root().isChanged());
    manager.model().root().markStored();
    EXPECT_FALSE(manager.model().root().isChanged());
    ASSERT_TRUE(assign(manager.root()->getNode(NDX("NeueDatenVorhanden")), DataType::makeBoolean(true)));
    EXPECT_TRUE(manager.model().root().isChanged());
}

TEST(DataManager, RootIsTheRecordOfItsModel) {
    DataManager manager;
    EXPECT_EQ(manager.root(), &manager.model().root());
    EXPECT_EQ(&manager.model().root().spec(), &manager.model().schema());
}

TEST(DataManager, TreesAreIndependent) {
    DataManager one;
    DataManager other;
    ASSERT_NE(tableOf(one.root(), "DataSets")->create(1), 0);
    ASSERT_TRUE(assign(one.root()->getNode(NDX("NextUniqueID")), DataType::makeInteger(2)));
    EXPECT_EQ(tableOf(other.root(), "DataSets")->getNodeCount(), 0);
    EXPECT_EQ(other.root()->getNode(NDX("NextUniqueID"))->getValue().getInt(), 1);

    one.model().schema().table("DataSets")->row.setTakesZeroDate("Datum", false);
    Node* dated = tableOf(one.root(), "DataSets")->getNodeNum(1)->getNode(NDX("Datum"));
    EXPECT_FALSE(assign(dated, ModelTesting::zeroDate()));
    ASSERT_NE(tableOf(other.root(), "DataSets")->create(1), 0);
    Node* undated = tableOf(other.root(), "DataSets")->getNodeNum(1)->getNode(NDX("Datum"));
    EXPECT_TRUE(assign(undated, ModelTesting::zeroDate()));
}

TEST(DataManager, RecordIsWrittenTheWayImportersDo) {
    DataManager manager;
    Node* root = manager.root();
    NodeTable* table = tableOf(root, "DataSets");
    root->prepareUpdate();
    const auto number = static_cast<unsigned short>(table->getNodeCount() + 1);
    ASSERT_NE(table->create(number), 0);
    Node* row = table->getNodeNum(number);
    ASSERT_TRUE(
        assign(row->getNode(NDX("Verwendungszweck")), ModelTesting::text("Rechnung 4711 vom 3. Mai, M\xFCller")));
    ASSERT_TRUE(assign(row->getNode(NDX("Betrag")), DataType::makeCurrency(-1234.5)));
    ASSERT_TRUE(assign(row->getNode(NDX("Datum")), ModelTesting::date(3, 5, 2024)));
    EXPECT_EQ(row->getNode(NDX("Verwendungszweck"))->getValue().asString(true, 2),
              "Rechnung 4711 vom 3. Mai, M\xFCller");
    EXPECT_EQ(row->getNode(NDX("Betrag"))->getValue().asString(true, 2), "-1.234,50");
    EXPECT_EQ(row->getNode(NDX("Datum"))->getValue().asString(true, 2), "03.05.2024");
    EXPECT_EQ(row->getNode(NDX("ImportID"))->getValue().kind(), DataType::eEmpty);
}

} // namespace
