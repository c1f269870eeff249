// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "framework/datamodel_api/DMSchemaContext.h"

#include <gtest/gtest.h>

#include "datamodel/DataModel.h"
#include "datamodel/FinanceSchema.h"
#include "datamodel/ModelTesting.h"

namespace {

TEST(DMSchemaContext, CenturyWindowOfAFreshTreeStartsAt30) {
    DataManager manager;
    EXPECT_EQ(manager.root()->getSchemaContext()->getCenturyWindowStart(), 30);
}

TEST(DMSchemaContext, EveryNodeOfATreeHasTheContextOfTheTree) {
    DataModel model(makeFinanceSchema(), 77);
    Node* root = &model.root();
    NodeTable* accounts = ModelTesting::tableOf(root, "HomeBankingImport");
    ASSERT_NE(accounts->create(1), 0);
    Node* account = accounts->getNodeNum(1);
    NodeTable* bookings = ModelTesting::tableOf(account, "DataSets");
    ASSERT_NE(bookings->create(1), 0);
    const Node* const nodes[] = {root,
                                 root->getNode(NDX("NeueDatenVorhanden")),
                                 accounts,
                                 account,
                                 account->getNode(NDX("NeueBuchungen")),
                                 bookings,
                                 bookings->getNodeNum(1),
                                 bookings->getNodeNum(1)->getNode(NDX("UniqueID"))};
    for (const Node* node : nodes) {
        ASSERT_NE(node, nullptr);
        EXPECT_EQ(node->getSchemaContext(), root->getSchemaContext());
    }
    EXPECT_EQ(root->getSchemaContext()->getCenturyWindowStart(), 77);
}

} // namespace
