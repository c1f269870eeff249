// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "framework/datamodel_api/Node.h"

#include <gtest/gtest.h>

#include "datamodel/ModelTesting.h"

namespace {

/// A node that another model made: ours must neither serve nor break on it.
template <typename Base>
class ForeignNode : public Base {
public:
    void prepareUpdate() override {}
    unsigned short getNodeCount() const override { return 0; }
    DMSchemaContext* getSchemaContext() const override { return nullptr; }
    DataType getValue() const override { return {}; }
    bool setValue(const DataType&, const NDX&, int) override { return false; }
};

TEST(Node, OfAnotherModelHasNoChildrenHere) {
    ForeignNode<Node> node;
    EXPECT_EQ(node.getNode(NDX()), &node);
    EXPECT_EQ(node.getNode(NDX("DataSets")), nullptr);
    EXPECT_EQ(node.getNodeNum(1), nullptr);
}

TEST(Node, TableOfAnotherModelMakesNoRowsHere) {
    ForeignNode<NodeTable> table;
    EXPECT_EQ(table.create(1), 0);
    DataManager manager;
    table.destroy(manager.root(), true);
    EXPECT_EQ(manager.root()->getNode(NDX("NextImportID"))->getValue().getInt(), 1);
    NodeTable* records = ModelTesting::tableOf(manager.root(), "DataSets");
    ForeignNode<Node> row;
    records->destroy(&row, true);
    EXPECT_EQ(records->getNodeCount(), 0);
}

TEST(Node, KeyWithoutANameIsTheNodeItself) {
    DataManager manager;
    EXPECT_EQ(manager.root()->getNode(NDX(nullptr)), manager.root());
}

} // namespace
