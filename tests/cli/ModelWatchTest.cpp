// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "cli/ModelWatch.h"

#include <gmock/gmock.h>

#include "cli/ModelTables.h"
#include "datamodel/DataManager.h"

namespace {

class ModelWatchTest : public ::testing::Test {
protected:
    RecordNode& root() { return m_manager.model().root(); }
    RecordNode* append() { return ModelTables::table(root(), "DataSets").append(); }
    static bool refuses(RecordNode& record, const char* field) {
        return !ModelTables::field(record, field).setValue(DataType(), NDX(), 0);
    }

    DataManager m_manager;
    Progress m_progress{false, "", 0};
};

TEST_F(ModelWatchTest, RefusedRecordsAreNumberedAsTheyWereMade) {
    const ModelWatch watch(m_manager.model(), m_progress);
    RecordNode* first = append();
    RecordNode* second = append();
    EXPECT_TRUE(refuses(*second, "Betrag"));
    EXPECT_TRUE(refuses(*second, "Datum"));
    ModelTables::table(root(), "DataSets").remove(second);
    EXPECT_TRUE(refuses(*append(), "Datum"));
    ASSERT_EQ(watch.refusals().size(), 2U);
    EXPECT_EQ(watch.refusals()[0].record, 2U);
    EXPECT_EQ(watch.refusals()[0].field, "Betrag") << "what came first";
    EXPECT_EQ(watch.refusals()[1].record, 3U) << "removed ones keep their number";
    EXPECT_FALSE(watch.refusedBookkeeping());
    EXPECT_NE(first, nullptr);
}

TEST_F(ModelWatchTest, FullTableRefusesRecordsWithoutAField) {
    for (unsigned row = 0; row < TableNode::kMaxRows; ++row)
        append();
    const ModelWatch watch(m_manager.model(), m_progress);
    EXPECT_EQ(append(), nullptr);
    EXPECT_EQ(append(), nullptr);
    ASSERT_EQ(watch.refusals().size(), 2U);
    EXPECT_EQ(watch.refusals()[1].record, 2U);
    EXPECT_EQ(watch.refusals()[1].field, "");
}

TEST_F(ModelWatchTest, BookkeepingIsToldApart) {
    struct Case {
        const char* refused;
        std::function<void(RecordNode&)> write;
    };
    const Case cases[] = {
        {"NextImportID", [](RecordNode& node) { refuses(node, "NextImportID"); }},
        {"ImportTyp",
         [](RecordNode& node) { refuses(*ModelTables::table(node, "Importsessions").append(), "ImportTyp"); }},
        {"UniqueID", [](RecordNode& node) { refuses(*ModelTables::table(node, "DataSets").append(), "UniqueID"); }},
        {"ImportID", [](RecordNode& node) { refuses(*ModelTables::table(node, "DataSets").append(), "ImportID"); }},
    };
    for (const Case& example : cases) {
        const ModelWatch watch(m_manager.model(), m_progress);
        example.write(root());
        EXPECT_EQ(watch.refusedBookkeeping(), example.refused);
        EXPECT_TRUE(watch.refusals().empty());
    }
}

TEST_F(ModelWatchTest, WatchesNoLongerThanItLives) {
    { const ModelWatch watch(m_manager.model(), m_progress); }
    EXPECT_TRUE(refuses(*append(), "Datum"));
}

TEST_F(ModelWatchTest, UnknownNamesAreAMistake) {
    EXPECT_THROW(ModelTables::table(root(), "Datum"), std::logic_error);
    EXPECT_THROW(ModelTables::field(root(), "DataSets"), std::logic_error);
}

} // namespace
