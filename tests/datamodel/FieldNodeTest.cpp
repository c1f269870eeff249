// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "datamodel/FieldNode.h"

#include <cmath>
#include <gtest/gtest.h>
#include <limits>
#include <string>
#include <type_traits>

#include "datamodel/DataModel.h"
#include "datamodel/ModelTesting.h"
#include "datamodel/TableSpec.h"

namespace {

using ModelTesting::assign;
using ModelTesting::date;
using ModelTesting::display;
using ModelTesting::text;
using ModelTesting::zeroDate;

struct KindCase {
    const char* field;
    DataType::E_Kind kind;
    DataType value;
    DataType other; // of the same kind
};

class FieldNodeTest : public ::testing::Test {
protected:
    static RecordSpec schema() {
        return {{{"Zahl", DataType::eInteger},
                 {"Betrag", DataType::eCurrency},
                 {"Text", DataType::eString},
                 {"Tag", DataType::eDate},
                 {"Vielleicht", DataType::eDate, true},
                 {"Flagge", DataType::eBoolean},
                 {"Nichts", DataType::eEmpty},
                 {"Text2", DataType::eString}},
                {}};
    }

    FieldNode& field(const char* name) {
        Node* node = m_model.root().getNode(NDX(name));
        EXPECT_NE(node, nullptr) << name;
        return dynamic_cast<FieldNode&>(*node);
    }

    DataModel m_model{schema()};
    const KindCase m_kinds[6] = {
        {"Zahl", DataType::eInteger, DataType::makeInteger(-7), DataType::makeInteger(2147483647)},
        {"Betrag", DataType::eCurrency, DataType::makeCurrency(-12.34), DataType::makeCurrency(0)},
        {"Text", DataType::eString, text("kurz"), text("ein Text, der nicht in das Feld passt")},
        {"Tag", DataType::eDate, date(29, 2, 2024), date(1, 1, 1)},
        {"Vielleicht", DataType::eDate, date(31, 12, 9999), zeroDate()},
        {"Flagge", DataType::eBoolean, DataType::makeBoolean(false), DataType::makeBoolean(true)},
    };
};

TEST_F(FieldNodeTest, StartsEmpty) {
    for (const FieldNode& field : m_model.root().fields()) {
        EXPECT_EQ(field.kind(), DataType::eEmpty);
        EXPECT_EQ(field.getValue().kind(), DataType::eEmpty);
        EXPECT_EQ(field.text(), "");
    }
}

TEST_F(FieldNodeTest, HoldsValuesOfItsKind) {
    for (const KindCase& c : m_kinds) {
        FieldNode& node = field(c.field);
        for (const DataType& value : {c.value, c.other, c.value}) {
            EXPECT_TRUE(assign(&node, value)) << c.field;
            EXPECT_EQ(node.kind(), c.kind) << c.field;
            EXPECT_EQ(node.getValue().kind(), c.kind) << c.field;
            EXPECT_EQ(display(node.getValue()), display(value)) << c.field;
        }
    }
}

TEST_F(FieldNodeTest, RefusesEveryOtherKindAndKeepsWhatItHas) {
    for (const KindCase& held : m_kinds) {
        FieldNode& node = field(held.field);
        ASSERT_TRUE(assign(&node, held.value));
        EXPECT_FALSE(assign(&node, DataType())) << "empty into " << held.field;
        for (const KindCase& offered : m_kinds) {
            if (offered.kind != held.kind) {
                EXPECT_FALSE(assign(&node, offered.value)) << offered.field << " into " << held.field;
            }
        }
        EXPECT_EQ(display(node.getValue()), display(held.value)) << held.field;
    }
}

TEST_F(FieldNodeTest, OfNoKindTakesNothing) {
    EXPECT_FALSE(assign(&field("Nichts"), DataType()));
    EXPECT_FALSE(assign(&field("Nichts"), DataType::makeInteger(1)));
}

TEST_F(FieldNodeTest, RefusesAnAmountOutsideTheBounds) {
    struct {
        double amount;
        bool taken;
        const char* why;
    } const cases[] = {
        {DMCurrency::MAX_CURRENCY, true, "upper bound itself"},
        {DMCurrency::MIN_CURRENCY, true, "lower bound itself"},
        {DMCurrency::MAX_CURRENCY + 0.01, false, "a cent above"},
        {DMCurrency::MIN_CURRENCY - 0.01, false, "a cent below"},
        {std::nextafter(DMCurrency::MAX_CURRENCY, 1e300), false, "next double above"},
        {std::nextafter(DMCurrency::MIN_CURRENCY, -1e300), false, "next double below"},
        {1e308, false, "huge"},
        {std::numeric_limits<double>::infinity(), false, "infinite"},
        {-std::numeric_limits<double>::infinity(), false, "negatively infinite"},
        {std::numeric_limits<double>::quiet_NaN(), false, "no number"},
        {-0.0, true, "negative zero"},
        {0.001, true, "fraction of a cent"},
    };
    FieldNode& node = field("Betrag");
    for (const auto& c : cases) {
        ASSERT_TRUE(assign(&node, DataType::makeCurrency(42)));
        EXPECT_EQ(assign(&node, DataType::makeCurrency(c.amount)), c.taken) << c.why;
        EXPECT_EQ(node.getValue().getCurrency(), c.taken ? c.amount : 42) << c.why;
    }
}

TEST_F(FieldNodeTest, TakesTheZeroDateWhereTheSchemaSaysSo) {
    EXPECT_FALSE(assign(&field("Tag"), zeroDate()));
    EXPECT_TRUE(assign(&field("Vielleicht"), zeroDate()));
    EXPECT_EQ(field("Vielleicht").kind(), DataType::eDate) << "no date is not the same as no value";

    m_model.schema().setTakesZeroDate("Tag", true);
    m_model.schema().setTakesZeroDate("Vielleicht", false);
    EXPECT_TRUE(assign(&field("Tag"), zeroDate()));
    EXPECT_FALSE(assign(&field("Vielleicht"), zeroDate()));
    EXPECT_TRUE(field("Vielleicht").getValue().getDate().isZero()) << "what is stored stays";
}

TEST_F(FieldNodeTest, HoldsTextsAroundTheLimitOfTheirPlaces) {
    FieldNode& node = field("Text");
    for (const std::size_t from : {0U, 12U, 13U, 14U, 15U, 16U, 17U, 300U}) {
        for (const std::size_t to : {0U, 1U, 12U, 13U, 14U, 15U, 16U, 17U, 254U, 255U, 256U, 70000U}) {
            ASSERT_TRUE(assign(&node, text(std::string(from, 'v'))));
            ASSERT_TRUE(assign(&node, text(std::string(to, 'n'))));
            EXPECT_EQ(node.text(), std::string(to, 'n')) << from << " to " << to;
            EXPECT_EQ(display(node.getValue()), std::string(to, 'n')) << from << " to " << to;
        }
    }
}

TEST_F(FieldNodeTest, KeepsTextsOfUpTo13BytesInside) {
    FieldNode& node = field("Text");
    const auto isInside = [&node] {
        const auto* begin = reinterpret_cast<const char*>(&node);
        return node.text().data() >= begin && node.text().data() < begin + sizeof node;
    };
    ASSERT_TRUE(assign(&node, text(std::string(13, 'x'))));
    EXPECT_TRUE(isInside());
    ASSERT_TRUE(assign(&node, text(std::string(14, 'x'))));
    EXPECT_FALSE(isInside());
}

TEST_F(FieldNodeTest, SharesALongTextWithTheValueAssigned) {
    const std::string bytes(16, 'x');
    {
        const DataType value = text(bytes);
        ASSERT_TRUE(assign(&field("Text"), value));
        ASSERT_TRUE(assign(&field("Text2"), value));
    }
    EXPECT_EQ(field("Text").text().data(), field("Text2").text().data()) << "one copy for both";
    ASSERT_TRUE(assign(&field("Text"), field("Text2").getValue()));
    EXPECT_EQ(field("Text").text().data(), field("Text2").text().data()) << "read and assigned again";

    ASSERT_TRUE(assign(&field("Text"), text("anders")));
    EXPECT_EQ(field("Text2").text(), bytes) << "the other owner keeps it";
}

TEST_F(FieldNodeTest, DoesNotShareWhatFitsIntoAValue) {
    const DataType value = text(std::string(15, 'x'));
    ASSERT_TRUE(assign(&field("Text"), value));
    ASSERT_TRUE(assign(&field("Text2"), value));
    EXPECT_NE(field("Text").text().data(), field("Text2").text().data());
    EXPECT_EQ(field("Text").text(), field("Text2").text());
}

TEST_F(FieldNodeTest, TakesItsOwnValueAgain) {
    for (const std::size_t length : {5U, 13U, 14U, 16U, 200U}) {
        FieldNode& node = field("Text");
        ASSERT_TRUE(assign(&node, text(std::string(length, 'q'))));
        EXPECT_TRUE(assign(&node, node.getValue()));
        EXPECT_EQ(node.text(), std::string(length, 'q'));
    }
}

TEST_F(FieldNodeTest, ValueReadOutlivesTheField) {
    DataType value;
    {
        DataModel model(schema());
        Node* node = model.root().getNode(NDX("Text"));
        ASSERT_TRUE(assign(node, text("ein Text, der nicht in das Feld passt")));
        value = node->getValue();
    }
    EXPECT_EQ(display(value), "ein Text, der nicht in das Feld passt");
}

TEST_F(FieldNodeTest, TextOfAnotherKindIsEmpty) {
    ASSERT_TRUE(assign(&field("Zahl"), DataType::makeInteger(5)));
    EXPECT_EQ(field("Zahl").text(), "");
}

TEST_F(FieldNodeTest, IsALeaf) {
    FieldNode& node = field("Zahl");
    EXPECT_EQ(node.getNode(NDX()), &node);
    EXPECT_EQ(node.getNode(NDX("Zahl")), nullptr);
    EXPECT_EQ(node.getNodeNum(1), nullptr);
    EXPECT_EQ(node.getNodeCount(), 0);
    EXPECT_EQ(dynamic_cast<NodeTable*>(static_cast<Node*>(&node)), nullptr);
    EXPECT_FALSE(node.setValue(DataType::makeInteger(1), NDX("Zahl"), 0)) << "a leaf has no child to assign";
    EXPECT_EQ(node.kind(), DataType::eEmpty);
}

TEST_F(FieldNodeTest, AssignmentMarksTheRecordAndARefusedOneDoesNot) {
    RecordNode& root = m_model.root();
    EXPECT_FALSE(root.isChanged());
    EXPECT_FALSE(assign(&field("Zahl"), text("x")));
    EXPECT_FALSE(assign(&field("Tag"), zeroDate()));
    EXPECT_FALSE(assign(&field("Betrag"), DataType::makeCurrency(1e13)));
    EXPECT_FALSE(root.isChanged());
    field("Zahl").prepareUpdate();
    EXPECT_FALSE(root.isChanged());
    EXPECT_TRUE(assign(&field("Text2"), text("x")));
    EXPECT_TRUE(root.isChanged());
    root.markStored();
    EXPECT_FALSE(root.isChanged());
    EXPECT_TRUE(assign(&field("Text2"), text("x")));
    EXPECT_TRUE(root.isChanged()) << "the same value again is an assignment too";
}

TEST_F(FieldNodeTest, RestoringAsksNeitherSchemaNorMarksTheRecord) {
    field("Tag").restore(zeroDate());
    EXPECT_EQ(field("Tag").kind(), DataType::eDate);
    field("Betrag").restore(DataType::makeCurrency(1e300));
    EXPECT_EQ(field("Betrag").getValue().getCurrency(), 1e300);
    field("Zahl").restore(text("keine Zahl, sondern ein Text"));
    EXPECT_EQ(field("Zahl").text(), "keine Zahl, sondern ein Text");
    EXPECT_FALSE(m_model.root().isChanged());
}

TEST_F(FieldNodeTest, RestoringReplacesEveryKindByEveryOther) {
    const DataType values[] = {DataType(),
                               DataType::makeInteger(1),
                               DataType::makeCurrency(2.5),
                               text("kurz"),
                               text("ein Text, der nicht in das Feld passt"),
                               date(3, 4, 2005),
                               DataType::makeBoolean(true)};
    FieldNode& node = field("Text");
    for (const DataType& from : values) {
        for (const DataType& to : values) {
            node.restore(from);
            node.restore(to);
            EXPECT_EQ(node.kind(), to.kind());
            EXPECT_EQ(display(node.getValue()), display(to));
        }
    }
}

TEST(FieldNodeSize, IsThreeWords) {
    EXPECT_EQ(sizeof(FieldNode), 24U);
    EXPECT_FALSE(std::is_copy_constructible_v<FieldNode>);
}

} // namespace
