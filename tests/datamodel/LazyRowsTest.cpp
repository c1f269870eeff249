// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>
#include <memory>
#include <set>
#include <stdexcept>
#include <vector>

#include "datamodel/DataModel.h"
#include "datamodel/ModelTesting.h"
#include "datamodel/RecordNode.h"
#include "datamodel/RowSource.h"
#include "datamodel/TableNode.h"
#include "datamodel/TableSpec.h"

namespace {

using ModelTesting::assign;

/// Rows whose "Nummer" is their own number in the source.
class CountingSource : public RowSource {
public:
    bool load(unsigned row, RecordNode& record) override {
        m_asked.push_back(row);
        if (m_throwing.count(row) != 0)
            throw std::runtime_error("Quelle gestört");
        record.fields()[0].restore(DataType::makeInteger(static_cast<int>(row)));
        record.setStoreId(1000 + row);
        return m_unreadable.count(row) == 0;
    }

    std::vector<unsigned> m_asked;
    std::set<unsigned> m_unreadable;
    std::set<unsigned> m_throwing;
};

class LazyRowsTest : public ::testing::Test {
protected:
    static RecordSpec schema() {
        std::vector<TableSpec> tables;
        tables.push_back({"Tabelle", RecordSpec({{"Nummer", DataType::eInteger}}, {})});
        return {{}, std::move(tables)};
    }

    int numberOf(unsigned row) { return m_table.row(row)->fields()[0].getValue().getInt(); }

    DataModel m_model{schema()};
    TableNode& m_table = m_model.root().table(0);
    std::shared_ptr<CountingSource> m_source = std::make_shared<CountingSource>();
};

TEST_F(LazyRowsTest, AttachingLoadsNothing) {
    m_table.attach(m_source, 60000);
    EXPECT_EQ(m_table.getNodeCount(), 60000);
    EXPECT_EQ(m_table.storedRowCount(), 60000U);
    EXPECT_EQ(m_table.rowIfLoaded(1), nullptr);
    EXPECT_EQ(m_table.getNodeNum(0), nullptr);
    ASSERT_NE(m_table.create(60001), 0);
    EXPECT_NE(m_table.getNodeNum(60001), nullptr);
    EXPECT_TRUE(m_source->m_asked.empty()) << "a row appended asks for none that is stored";
}

TEST_F(LazyRowsTest, LoadsARowOnceWhenFirstAskedFor) {
    m_table.attach(m_source, 5);
    Node* row = m_table.getNodeNum(3);
    ASSERT_NE(row, nullptr);
    EXPECT_EQ(row->getNode(NDX("Nummer"))->getValue().getInt(), 3);
    EXPECT_EQ(m_table.getNodeNum(3), row);
    EXPECT_EQ(m_table.rowIfLoaded(3), row);
    EXPECT_EQ(m_table.row(3)->storeId(), 1003);
    EXPECT_FALSE(m_table.row(3)->isChanged());
    EXPECT_EQ(m_source->m_asked, (std::vector{3U}));
    EXPECT_EQ(m_table.rowIfLoaded(2), nullptr);
}

TEST_F(LazyRowsTest, ARowLoadedCountsAsStoredHoweverTheSourceFilledIt) {
    class AssigningSource : public RowSource {
        bool load(unsigned, RecordNode& record) override {
            return assign(&record.fields()[0], DataType::makeInteger(1));
        }
    };
    m_table.attach(std::make_shared<AssigningSource>(), 1);
    EXPECT_FALSE(m_table.row(1)->isChanged());
    ASSERT_TRUE(assign(&m_table.row(1)->fields()[0], DataType::makeInteger(2)));
    EXPECT_TRUE(m_table.row(1)->isChanged());
}

TEST_F(LazyRowsTest, ARowThatCannotBeReadIsNullAndMayLoadLater) {
    m_source->m_unreadable = {2};
    m_table.attach(m_source, 3);
    EXPECT_EQ(m_table.getNodeNum(2), nullptr);
    EXPECT_EQ(m_table.rowIfLoaded(2), nullptr);
    EXPECT_EQ(m_table.getNodeCount(), 3) << "its number stays taken";
    EXPECT_EQ(numberOf(3), 3);
    m_source->m_unreadable.clear();
    EXPECT_EQ(numberOf(2), 2);
    EXPECT_EQ(m_source->m_asked, (std::vector{2U, 3U, 2U}));
}

TEST_F(LazyRowsTest, ASourceThatThrowsLeavesTheRowToLoadLater) {
    m_source->m_throwing = {1};
    m_table.attach(m_source, 1);
    EXPECT_THROW(m_table.row(1), std::runtime_error);
    m_source->m_throwing.clear();
    EXPECT_EQ(numberOf(1), 1);
}

TEST_F(LazyRowsTest, RemovingARowKeepsTheOthersOfTheSourceInPlace) {
    m_table.attach(m_source, 6);
    ASSERT_TRUE(m_table.remove(m_table.row(2)));
    EXPECT_EQ(numberOf(2), 3) << "row 3 of the source has moved up";
    ASSERT_TRUE(m_table.remove(m_table.row(4)));
    EXPECT_EQ(numberOf(4), 6);
    EXPECT_EQ(numberOf(1), 1);
    EXPECT_EQ(m_table.getNodeCount(), 4);
    EXPECT_EQ(m_table.storedRowCount(), 4U);
    EXPECT_EQ(m_table.removedStoreIds(), (std::vector<std::int64_t>{1002, 1005}));
}

TEST_F(LazyRowsTest, RowsAppendedAndRemovedLeaveTheStoredOnesAlone) {
    m_table.attach(m_source, 2);
    RecordNode* added = m_table.append();
    ASSERT_TRUE(m_table.remove(added));
    EXPECT_TRUE(m_table.removedStoreIds().empty());
    EXPECT_EQ(m_table.storedRowCount(), 2U);
    EXPECT_TRUE(m_source->m_asked.empty());
}

TEST_F(LazyRowsTest, RowsNotLoadedStayLoadableAfterStoring) {
    m_table.attach(m_source, 3);
    ASSERT_TRUE(m_table.remove(m_table.row(1)));
    m_table.append();
    m_table.markStored();
    EXPECT_EQ(m_table.storedRowCount(), 3U);
    EXPECT_TRUE(m_table.removedStoreIds().empty());
    EXPECT_EQ(numberOf(2), 3) << "by its number when the source was attached";
    EXPECT_EQ(numberOf(1), 2);
}

TEST_F(LazyRowsTest, AFullTableFromASourceTakesNoRow) {
    m_table.attach(m_source, TableNode::kMaxRows);
    EXPECT_EQ(m_table.create(0), 0);
    EXPECT_EQ(m_table.append(), nullptr);
    EXPECT_EQ(numberOf(65535), 65535);
}

TEST_F(LazyRowsTest, AttachingNeedsAnEmptyTableAndASource) {
    EXPECT_THROW(m_table.attach(nullptr, 1), std::invalid_argument);
    EXPECT_THROW(m_table.attach(m_source, TableNode::kMaxRows + 1), std::invalid_argument);
    m_table.append();
    EXPECT_THROW(m_table.attach(m_source, 1), std::invalid_argument);
    EXPECT_EQ(m_table.getNodeCount(), 1);
    m_table.markStored();
    ASSERT_TRUE(m_table.remove(m_table.row(1)));
    EXPECT_THROW(m_table.attach(m_source, 1), std::invalid_argument) << "a store still has to hear of the row removed";
    m_table.markStored();
    m_table.attach(m_source, 1);
    EXPECT_EQ(numberOf(1), 1);
}

TEST_F(LazyRowsTest, TheTableHoldsOnToItsSource) {
    std::weak_ptr<RowSource> watched = m_source;
    m_table.attach(std::move(m_source), 1);
    EXPECT_FALSE(watched.expired());
    EXPECT_EQ(numberOf(1), 1);
}

} // namespace
