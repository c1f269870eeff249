// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "datamodel/RecordNode.h"

#include <cstdint>
#include <gtest/gtest.h>
#include <limits>
#include <utility>

#include "datamodel/DataModel.h"
#include "datamodel/ModelContext.h"
#include "datamodel/ModelTesting.h"
#include "datamodel/TableNode.h"
#include "datamodel/TableSpec.h"

namespace {

using ModelTesting::assign;
using ModelTesting::text;

RecordSpec nestedSchema() {
    std::vector<TableSpec> inner;
    inner.push_back({"Innen", RecordSpec({{"Wert", DataType::eString}}, {})});
    std::vector<TableSpec> outer;
    outer.push_back({"Erste", RecordSpec({{"Name", DataType::eString}}, std::move(inner))});
    outer.push_back({"Zweite", RecordSpec({}, {})});
    return {{{"Kopf", DataType::eInteger}}, std::move(outer)};
}

TEST(RecordNode, HasEveryFieldAndTableOfItsSchema) {
    DataModel model(nestedSchema());
    RecordNode& root = model.root();
    ASSERT_EQ(root.fields().size(), 1U);
    EXPECT_EQ(std::as_const(root).fields().data(), root.fields().data());
    EXPECT_EQ(root.getNode(NDX("Kopf")), &root.fields()[0]);
    EXPECT_EQ(root.getNode(NDX("Erste")), &root.table(0));
    EXPECT_EQ(root.getNode(NDX("Zweite")), &root.table(1));
    EXPECT_EQ(root.getNode(NDX("Dritte")), nullptr);
    EXPECT_EQ(root.getNode(NDX("")), nullptr) << "an empty name is no key of the node itself";
    EXPECT_EQ(root.getNode(NDX()), &root);
    EXPECT_EQ(root.child("Kopf"), &root.fields()[0]);
}

TEST(RecordNode, MakesTablesWhenFirstAskedFor) {
    DataModel model(nestedSchema());
    RecordNode& root = model.root();
    EXPECT_EQ(root.tableIfMade(0), nullptr);
    EXPECT_EQ(root.tableIfMade(1), nullptr);
    TableNode& table = root.table(1);
    EXPECT_EQ(root.tableIfMade(1), &table);
    EXPECT_EQ(&root.table(1), &table) << "the same one ever after";
    EXPECT_EQ(root.tableIfMade(0), nullptr);
}

TEST(RecordNode, IsNeitherLeafNorTable) {
    DataModel model(nestedSchema());
    RecordNode& root = model.root();
    root.prepareUpdate();
    EXPECT_EQ(root.getNodeCount(), 0);
    EXPECT_EQ(root.getNodeNum(1), nullptr);
    EXPECT_EQ(root.getValue().kind(), DataType::eEmpty);
    EXPECT_FALSE(assign(&root, DataType::makeInteger(1)));
    EXPECT_FALSE(root.setValue(DataType::makeInteger(1), NDX("Kopf"), 0)) << "fields are assigned at the field";
    EXPECT_FALSE(root.isChanged());
    EXPECT_EQ(root.fields()[0].kind(), DataType::eEmpty);
    EXPECT_EQ(dynamic_cast<NodeTable*>(static_cast<Node*>(&root)), nullptr);
}

TEST(RecordNode, KeepsTheNumberOfTheStore) {
    DataModel model(nestedSchema());
    RecordNode& root = model.root();
    EXPECT_EQ(root.storeId(), 0);
    for (const std::int64_t id : {std::int64_t{1}, std::numeric_limits<std::int64_t>::max(), std::int64_t{-1}}) {
        root.setStoreId(id);
        EXPECT_EQ(root.storeId(), id);
    }
    EXPECT_FALSE(root.isChanged());
}

TEST(RecordNode, ReleasesNestedTablesWithTheirTexts) {
    // What is not released here is reported by the leak checker.
    DataModel model(nestedSchema());
    TableNode& outer = model.root().table(0);
    for (int i = 0; i < 50; ++i) {
        RecordNode* row = outer.append();
        ASSERT_TRUE(assign(row->getNode(NDX("Name")), text("ein Name, der einen eigenen Block braucht")));
        for (int k = 0; k < 20; ++k) {
            RecordNode* inner = row->table(0).append();
            ASSERT_TRUE(assign(inner->getNode(NDX("Wert")), text("ein Wert, der einen eigenen Block braucht")));
        }
    }
    ASSERT_TRUE(outer.remove(outer.row(25)));
    EXPECT_EQ(outer.getNodeCount(), 49);
    EXPECT_EQ(outer.row(25)->table(0).getNodeCount(), 20);
}

TEST(RecordNode, CanBeMadeAndReleasedAlone) {
    const RecordSpec spec({{"Text", DataType::eString}}, {});
    ModelContext context(30);
    RecordNode* record = RecordNode::make(spec, context);
    EXPECT_EQ(&record->spec(), &spec);
    EXPECT_EQ(record->getSchemaContext(), &context);
    EXPECT_FALSE(record->isChanged());
    EXPECT_TRUE(assign(record->getNode(NDX("Text")), text("ein Text, der nicht in das Feld passt")));
    RecordNode::destroy(record);
    RecordNode::destroy(nullptr);
}

} // namespace
