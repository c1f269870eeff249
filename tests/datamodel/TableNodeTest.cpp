// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "datamodel/TableNode.h"

#include <gtest/gtest.h>
#include <vector>

#include "datamodel/DataModel.h"
#include "datamodel/ModelTesting.h"
#include "datamodel/RecordNode.h"
#include "datamodel/TableSpec.h"

namespace {

using ModelTesting::assign;

class TableNodeTest : public ::testing::Test {
protected:
    static RecordSpec schema() {
        std::vector<TableSpec> tables;
        for (const char* name : {"Tabelle", "Andere"})
            tables.push_back({name, RecordSpec({{"Nummer", DataType::eInteger}, {"Text", DataType::eString}}, {})});
        return {{}, std::move(tables)};
    }

    void appendNumbered(int count) {
        for (int i = 1; i <= count; ++i)
            ASSERT_TRUE(assign(m_table.append()->getNode(NDX("Nummer")), DataType::makeInteger(i)));
    }

    std::vector<int> numbers() {
        std::vector<int> found;
        for (unsigned row = 1; row <= m_table.getNodeCount(); ++row)
            found.push_back(m_table.row(row)->getNode(NDX("Nummer"))->getValue().getInt());
        return found;
    }

    DataModel m_model{schema()};
    TableNode& m_table = m_model.root().table(0);
};

TEST_F(TableNodeTest, StartsWithoutRows) {
    EXPECT_EQ(m_table.getNodeCount(), 0);
    EXPECT_EQ(m_table.getNodeNum(0), nullptr);
    EXPECT_EQ(m_table.getNodeNum(1), nullptr);
    EXPECT_EQ(m_table.rowIfLoaded(1), nullptr);
}

TEST_F(TableNodeTest, CreateAppendsARowWithEveryField) {
    EXPECT_NE(m_table.create(1), 0);
    EXPECT_EQ(m_table.getNodeCount(), 1);
    Node* row = m_table.getNodeNum(1);
    ASSERT_NE(row, nullptr);
    for (const char* name : {"Nummer", "Text"}) {
        ASSERT_NE(row->getNode(NDX(name)), nullptr) << name;
        EXPECT_EQ(row->getNode(NDX(name))->getValue().kind(), DataType::eEmpty) << name;
    }
}

TEST_F(TableNodeTest, CreateTakesOnlyTheNextNumber) {
    appendNumbered(2);
    for (const int row : {0, 1, 2, 4, 65535})
        EXPECT_EQ(m_table.create(static_cast<unsigned short>(row)), 0) << row;
    EXPECT_EQ(m_table.getNodeCount(), 2);
    EXPECT_NE(m_table.create(3), 0);
    EXPECT_EQ(m_table.getNodeCount(), 3);
}

TEST_F(TableNodeTest, RowsCountFromOne) {
    appendNumbered(3);
    EXPECT_EQ(m_table.getNodeNum(0), nullptr);
    EXPECT_EQ(m_table.getNodeNum(1), m_table.row(1));
    EXPECT_EQ(m_table.getNodeNum(3), m_table.row(3));
    EXPECT_EQ(m_table.getNodeNum(4), nullptr);
    EXPECT_EQ(m_table.getNodeNum(65535), nullptr);
    EXPECT_EQ(m_table.rowIfLoaded(0), nullptr);
    EXPECT_EQ(m_table.rowIfLoaded(3), m_table.row(3));
    EXPECT_EQ(m_table.row(70000), nullptr);
    EXPECT_EQ(numbers(), (std::vector{1, 2, 3}));
}

TEST_F(TableNodeTest, IsATableWithoutValueOrFields) {
    m_table.prepareUpdate();
    EXPECT_EQ(dynamic_cast<NodeTable*>(m_model.root().getNode(NDX("Tabelle"))), &m_table);
    EXPECT_EQ(m_table.getNode(NDX()), &m_table);
    EXPECT_EQ(m_table.getNode(NDX("Nummer")), nullptr);
    EXPECT_EQ(m_table.getValue().kind(), DataType::eEmpty);
    EXPECT_FALSE(assign(&m_table, DataType::makeInteger(1)));
    EXPECT_EQ(&m_table.rowSpec(), &m_model.schema().tables()[0].row);
}

TEST_F(TableNodeTest, RemovingARowRenumbersThoseBehindIt) {
    appendNumbered(5);
    m_table.destroy(m_table.getNodeNum(2), true);
    EXPECT_EQ(numbers(), (std::vector{1, 3, 4, 5}));
    m_table.destroy(m_table.getNodeNum(4), true);
    EXPECT_EQ(numbers(), (std::vector{1, 3, 4}));
    m_table.destroy(m_table.getNodeNum(1), false);
    EXPECT_EQ(numbers(), (std::vector{3, 4}));
    EXPECT_NE(m_table.create(3), 0) << "the next number follows the rows that are left";
}

TEST_F(TableNodeTest, ARowsNodesStayWhereTheyAreWhileOthersComeAndGo) {
    appendNumbered(2);
    Node* first = m_table.getNodeNum(1);
    Node* field = first->getNode(NDX("Nummer"));
    appendNumbered(3000);
    m_table.destroy(m_table.getNodeNum(2), true);
    EXPECT_EQ(m_table.getNodeNum(1), first);
    EXPECT_EQ(first->getNode(NDX("Nummer")), field);
}

TEST_F(TableNodeTest, DestroysOnlyItsOwnRows) {
    appendNumbered(2);
    TableNode& other = m_model.root().table(1);
    RecordNode* foreign = other.append();
    m_table.destroy(nullptr, true);
    m_table.destroy(foreign, true);
    m_table.destroy(&m_table, true);
    m_table.destroy(&m_model.root(), true);
    m_table.destroy(m_table.getNodeNum(1)->getNode(NDX("Nummer")), true);
    EXPECT_FALSE(m_table.remove(nullptr));
    EXPECT_FALSE(m_table.remove(foreign));
    EXPECT_EQ(numbers(), (std::vector{1, 2}));
    EXPECT_EQ(other.getNodeCount(), 1);
}

TEST_F(TableNodeTest, Ends65535RowsLong) {
    for (unsigned row = 1; row <= TableNode::kMaxRows; ++row)
        ASSERT_NE(m_table.create(static_cast<unsigned short>(row)), 0) << row;
    EXPECT_EQ(m_table.getNodeCount(), 65535);
    Node* last = m_table.getNodeNum(65535);
    ASSERT_NE(last, nullptr);
    ASSERT_TRUE(assign(last->getNode(NDX("Nummer")), DataType::makeInteger(9)));

    const auto wrapped = static_cast<unsigned short>(m_table.getNodeCount() + 1);
    EXPECT_EQ(wrapped, 0);
    EXPECT_EQ(m_table.create(wrapped), 0);
    EXPECT_EQ(m_table.append(), nullptr);
    EXPECT_EQ(m_table.getNodeCount(), 65535) << "nothing before is lost";
    EXPECT_EQ(m_table.getNodeNum(65535), last);

    m_table.destroy(m_table.getNodeNum(1), true);
    EXPECT_EQ(m_table.getNodeNum(65534), last);
    EXPECT_NE(m_table.create(65535), 0) << "a row removed makes room for one";
}

TEST_F(TableNodeTest, NewRowsFollowTheStoredOnes) {
    appendNumbered(3);
    EXPECT_EQ(m_table.storedRowCount(), 0U);
    EXPECT_TRUE(m_table.row(2)->isChanged());
    m_table.markStored();
    EXPECT_EQ(m_table.storedRowCount(), 3U);
    for (unsigned row = 1; row <= 3; ++row)
        EXPECT_FALSE(m_table.row(row)->isChanged()) << row;
    m_table.append();
    EXPECT_EQ(m_table.storedRowCount(), 3U);
}

TEST_F(TableNodeTest, RemembersTheStoreIdsOfRowsRemoved) {
    appendNumbered(4);
    for (unsigned row = 1; row <= 4; ++row)
        m_table.row(row)->setStoreId(100 + row);
    m_table.markStored();
    appendNumbered(2);
    ASSERT_TRUE(m_table.remove(m_table.row(5)));
    EXPECT_TRUE(m_table.removedStoreIds().empty()) << "the store never had that row";
    EXPECT_EQ(m_table.storedRowCount(), 4U);

    ASSERT_TRUE(m_table.remove(m_table.row(4)));
    ASSERT_TRUE(m_table.remove(m_table.row(1)));
    EXPECT_EQ(m_table.removedStoreIds(), (std::vector<std::int64_t>{104, 101}));
    EXPECT_EQ(m_table.storedRowCount(), 2U);
    EXPECT_EQ(numbers(), (std::vector{2, 3, 2}));

    m_table.markStored();
    EXPECT_TRUE(m_table.removedStoreIds().empty());
    EXPECT_EQ(m_table.storedRowCount(), 3U);
}

} // namespace
