// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "datamodel/ModelObserver.h"

#include <gtest/gtest.h>
#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

#include "datamodel/DataModel.h"
#include "datamodel/FinanceSchema.h"
#include "datamodel/ModelTesting.h"
#include "datamodel/RowSource.h"
#include "datamodel/TableNode.h"

namespace {

using ModelTesting::assign;
using ModelTesting::tableOf;
using ModelTesting::text;

/// Writes down what it hears.
class Listener : public ModelObserver {
public:
    void rowAppended(const TableNode& table, const RecordNode& row) override {
        const bool isLast = table.rowIfLoaded(table.getNodeCount()) == &row;
        m_heard.push_back("appended " + std::to_string(table.getNodeCount()) + (isLast ? "" : ", not the last"));
    }
    void rowRefused(const TableNode& table) override {
        m_heard.push_back("full at " + std::to_string(table.getNodeCount()));
    }
    void valueRefused(const RecordNode& record, const FieldSpec& field, const DataType& value) override {
        const auto index = record.spec().fieldIndex(field.name);
        m_heard.push_back(field.name + " refused " + value.asString(true, 2) + ", holds " +
                          record.fields()[index.value()].getValue().asString(true, 2));
    }

    std::vector<std::string> m_heard;
};

class ModelObserverTest : public ::testing::Test {
protected:
    ModelObserverTest() { m_model.setObserver(&m_listener); }

    Listener m_listener;
    DataModel m_model{makeFinanceSchema()};
    NodeTable* m_table = tableOf(&m_model.root(), "DataSets");
};

TEST_F(ModelObserverTest, HearsOfRowsAndRefusedValues) {
    ASSERT_NE(m_table->create(1), 0);
    Node* amount = m_table->getNodeNum(1)->getNode(NDX("Betrag"));
    ASSERT_TRUE(assign(amount, DataType::makeCurrency(1)));
    EXPECT_FALSE(assign(amount, DataType::makeCurrency(1e13)));
    EXPECT_FALSE(assign(m_table->getNodeNum(1)->getNode(NDX("Datum")), text("morgen")));
    m_table->destroy(m_table->getNodeNum(1), true);
    EXPECT_EQ(m_listener.m_heard,
              (std::vector<std::string>{"appended 1", "Betrag refused 10.000.000.000.000,00, holds 1,00",
                                        "Datum refused morgen, holds "}));
}

TEST_F(ModelObserverTest, HearsOfNestedTables) {
    NodeTable* accounts = tableOf(&m_model.root(), "HomeBankingImport");
    ASSERT_NE(accounts->create(1), 0);
    ASSERT_NE(tableOf(accounts->getNodeNum(1), "DataSets")->create(1), 0);
    EXPECT_EQ(m_listener.m_heard, (std::vector<std::string>{"appended 1", "appended 1"}));
}

TEST_F(ModelObserverTest, HearsThatTheTableIsFull) {
    class NoRows : public RowSource {
        bool load(unsigned, RecordNode&) override { return false; }
    };
    auto& table = dynamic_cast<TableNode&>(*m_table);
    table.attach(std::make_shared<NoRows>(), TableNode::kMaxRows);
    EXPECT_EQ(table.append(), nullptr);
    EXPECT_EQ(m_listener.m_heard, (std::vector<std::string>{"full at 65535"}));
}

TEST_F(ModelObserverTest, TakenOffHearsNothing) {
    m_model.setObserver(nullptr);
    ASSERT_NE(m_table->create(1), 0);
    EXPECT_FALSE(assign(m_table->getNodeNum(1)->getNode(NDX("Betrag")), text("x")));
    EXPECT_TRUE(m_listener.m_heard.empty());
}

TEST_F(ModelObserverTest, MayIgnoreWhatItDoesNotCareFor) {
    ModelObserver indifferent;
    m_model.setObserver(&indifferent);
    auto& table = dynamic_cast<TableNode&>(*m_table);
    while (table.getNodeCount() < TableNode::kMaxRows)
        ASSERT_NE(table.append(), nullptr);
    EXPECT_EQ(table.append(), nullptr);
    EXPECT_FALSE(assign(table.getNodeNum(1)->getNode(NDX("Betrag")), text("x")));
}

TEST_F(ModelObserverTest, RowStaysWhenItsObserverThrows) {
    class Thrower : public ModelObserver {
        void rowAppended(const TableNode&, const RecordNode&) override { throw std::runtime_error("nicht heute"); }
    } thrower;
    m_model.setObserver(&thrower);
    EXPECT_THROW(m_table->create(1), std::runtime_error);
    m_model.setObserver(nullptr);
    EXPECT_EQ(m_table->getNodeCount(), 1);
    EXPECT_TRUE(assign(m_table->getNodeNum(1)->getNode(NDX("Betrag")), DataType::makeCurrency(1)));
}

} // namespace
