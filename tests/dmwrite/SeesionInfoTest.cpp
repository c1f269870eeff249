// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include <chrono>
#include <climits>
#include <functional>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "dmwrite/SeesionInfo.h"
#include "support/CountingNode.h"
#include "support/FinanceModel.h"

namespace {

DMDate utcToday() {
    const std::chrono::year_month_day today(std::chrono::floor<std::chrono::days>(std::chrono::system_clock::now()));
    return DMDate(static_cast<unsigned>(today.day()), static_cast<unsigned>(today.month()),
                  static_cast<unsigned>(static_cast<int>(today.year())));
}

/// A session in which every part is set.
SeesionInfo wholeSession(Node* root) {
    SeesionInfo session;
    session.init(root);
    session.m_importInfo = "Umsaetze Mai";
    session.m_importFileName = "/home/x/mai.csv";
    session.m_importType = 1;
    session.m_importDate = DMDate(24, 5, 2026);
    return session;
}

TEST(SeesionInfoTest, FreshSessionHoldsNothing) {
    const SeesionInfo session;
    EXPECT_EQ(session.m_importInfo.kind(), DataType::eEmpty);
    EXPECT_EQ(session.m_importFileName.kind(), DataType::eEmpty);
    EXPECT_EQ(session.m_importType, 99);
    EXPECT_EQ(session.m_importID.kind(), DataType::eEmpty);
    EXPECT_EQ(session.m_importDate.kind(), DataType::eEmpty);
    EXPECT_EQ(session.m_rootNode, nullptr);
    EXPECT_FALSE(session.isValid());
    EXPECT_FALSE(session.isValidDate());
}

TEST(SeesionInfoTest, FieldsLieInTheOrderOfHosts) {
    const SeesionInfo session;
    const void* const members[] = {&session.m_importInfo, &session.m_importFileName, &session.m_importType,
                                   &session.m_importID,   &session.m_importDate,     &session.m_rootNode};
    for (std::size_t i = 1; i < std::size(members); ++i)
        EXPECT_LT(members[i - 1], members[i]) << i;
}

TEST(SeesionInfoTest, InitTakesTheRootAndReadsTheCounter) {
    const FinanceModel model;
    model.set("NextImportID", DataType::makeInteger(5));
    SeesionInfo session;
    session.init(model.root());
    EXPECT_EQ(session.m_rootNode, model.root());
    EXPECT_EQ(session.m_importID.kind(), DataType::eInteger);
    EXPECT_EQ(session.m_importID.getInt(), 5);
}

TEST(SeesionInfoTest, SetupImportIDAloneLeavesTheCounter) {
    const FinanceModel model;
    model.set("NextImportID", DataType::makeInteger(5));
    SeesionInfo session;
    session.init(model.root());
    session.setupImportID();
    EXPECT_EQ(session.m_importID.getInt(), 5);
    EXPECT_EQ(model.integer("NextImportID"), 5);
    model.set("NextImportID", DataType::makeInteger(8));
    session.setupImportID();
    EXPECT_EQ(session.m_importID.getInt(), 8);
}

TEST(SeesionInfoTest, MissingCounterLeavesNoImportID) {
    const FinanceModel model(SchemaDraft::finance().without("NextImportID"));
    SeesionInfo session;
    session.m_importID = DataType::makeInteger(7);
    session.init(model.root());
    EXPECT_EQ(session.m_importID.kind(), DataType::eEmpty);
}

TEST(SeesionInfoTest, NoRootLeavesNoImportID) {
    SeesionInfo session;
    session.init(nullptr);
    EXPECT_EQ(session.m_importID.kind(), DataType::eEmpty);
    EXPECT_EQ(session.m_rootNode, nullptr);
}

TEST(SeesionInfoTest, ImportDateIsTodayInUtc) {
    SeesionInfo session;
    const DMDate before = utcToday();
    session.setupImportDate();
    const DMDate after = utcToday(); // another day when midnight passed meanwhile
    EXPECT_EQ(session.m_importDate.kind(), DataType::eDate);
    const DMDate stamped = session.m_importDate.getDate();
    EXPECT_TRUE(stamped == before || stamped == after);
    EXPECT_TRUE(session.isValidDate());
}

TEST(SeesionInfoTest, DateIsValidWhenItIsADateAndNotTheZeroDate) {
    SeesionInfo session;
    EXPECT_FALSE(session.isValidDate()) << "empty";
    session.m_importDate = dateValue(0, 0, 0);
    EXPECT_FALSE(session.isValidDate()) << "zero date";
    session.m_importDate = textValue("1.2.2004");
    EXPECT_FALSE(session.isValidDate()) << "a text";
    session.m_importDate = DataType::makeInteger(20040201);
    EXPECT_FALSE(session.isValidDate()) << "a number";
    session.m_importDate = dateValue(1, 2, 2004);
    EXPECT_TRUE(session.isValidDate());
}

TEST(SeesionInfoTest, SessionIsValidWhenEveryPartIsThere) {
    const FinanceModel model;
    EXPECT_TRUE(wholeSession(model.root()).isValid());

    SeesionInfo least = wholeSession(model.root());
    least.m_importInfo = "";
    least.m_importFileName = "";
    least.m_importType = 0;
    least.m_importID = DataType::makeInteger(1);
    EXPECT_TRUE(least.isValid()) << "empty texts, type 0 and ID 1 are whole";
}

TEST(SeesionInfoTest, SessionThatLacksAPartIsNotValid) {
    struct Case {
        const char* why;
        std::function<void(SeesionInfo&)> spoil;
    };
    const Case cases[] = {
        {"no root", [](SeesionInfo& s) { s.m_rootNode = nullptr; }},
        {"type not set", [](SeesionInfo& s) { s.m_importType = 99; }},
        {"no import ID", [](SeesionInfo& s) { s.m_importID = DataType(); }},
        {"import ID is no integer", [](SeesionInfo& s) { s.m_importID = "5"; }},
        {"import ID is an amount", [](SeesionInfo& s) { s.m_importID = DataType::makeCurrency(5); }},
        {"import ID 0", [](SeesionInfo& s) { s.m_importID = DataType::makeInteger(0); }},
        {"negative import ID", [](SeesionInfo& s) { s.m_importID = DataType::makeInteger(-1); }},
        {"no date", [](SeesionInfo& s) { s.m_importDate = DataType(); }},
        {"zero date", [](SeesionInfo& s) { s.m_importDate = DMDate(); }},
        {"no description", [](SeesionInfo& s) { s.m_importInfo = DataType(); }},
        {"description is no text", [](SeesionInfo& s) { s.m_importInfo = DataType::makeInteger(1); }},
        {"no file name", [](SeesionInfo& s) { s.m_importFileName = DataType(); }},
        {"file name is no text", [](SeesionInfo& s) { s.m_importFileName = DMDate(1, 2, 2004); }},
    };
    const FinanceModel model;
    for (const Case& c : cases) {
        SeesionInfo session = wholeSession(model.root());
        c.spoil(session);
        EXPECT_FALSE(session.isValid()) << c.why;
    }
}

TEST(SeesionInfoTest, WritingASessionFillsItsRowAndMovesTheCounterOn) {
    const FinanceModel model;
    model.set("NextImportID", DataType::makeInteger(5));
    Node* row = wholeSession(model.root()).writeSessionInfoToDM();
    ASSERT_NE(row, nullptr);
    EXPECT_EQ(row, model.node("Importsessions/1"));
    EXPECT_EQ(model.rows("Importsessions"), 1);
    EXPECT_EQ(model.text("Importsessions/1/ImportDatum"), "24.05.2026");
    EXPECT_EQ(model.text("Importsessions/1/ImportInfo"), "Umsaetze Mai");
    EXPECT_EQ(model.kind("Importsessions/1/ImportID"), DataType::eInteger);
    EXPECT_EQ(model.integer("Importsessions/1/ImportID"), 5);
    EXPECT_EQ(model.kind("Importsessions/1/ImportTyp"), DataType::eInteger);
    EXPECT_EQ(model.integer("Importsessions/1/ImportTyp"), 1);
    EXPECT_EQ(model.text("Importsessions/1/ImportFileName"), "/home/x/mai.csv");
    EXPECT_EQ(model.kind("NextImportID"), DataType::eInteger);
    EXPECT_EQ(model.integer("NextImportID"), 6);
}

TEST(SeesionInfoTest, SessionsAreAppendedWithIncreasingIDs) {
    const FinanceModel model;
    for (int id = 1; id <= 3; ++id) {
        const Node* row = wholeSession(model.root()).writeSessionInfoToDM();
        const std::string path = "Importsessions/" + std::to_string(id);
        EXPECT_EQ(row, model.node(path));
        EXPECT_EQ(model.integer(path + "/ImportID"), id);
    }
    EXPECT_EQ(model.rows("Importsessions"), 3);
    EXPECT_EQ(model.integer("NextImportID"), 4);
}

TEST(SeesionInfoTest, SessionWithTypeNotSetIsWrittenAllTheSame) {
    // A module that the front door did not make has no format.
    const FinanceModel model;
    SeesionInfo session = wholeSession(model.root());
    session.m_importType = 99;
    ASSERT_NE(session.writeSessionInfoToDM(), nullptr);
    EXPECT_EQ(model.integer("Importsessions/1/ImportTyp"), 99);
}

/// The fields of a session row in the order in which they are written.
const char* const kFieldsInOrder[] = {"ImportDatum", "ImportInfo", "ImportID", "ImportTyp", "ImportFileName"};

/// Writes a session into a tree whose field `spoiled` is missing or refuses, and
/// expects what lies before it to be written and nothing behind it.
void expectWritingStopsAt(std::size_t spoiled, const FinanceModel& model, const char* how) {
    EXPECT_EQ(wholeSession(model.root()).writeSessionInfoToDM(), nullptr) << kFieldsInOrder[spoiled] << how;
    EXPECT_EQ(model.rows("Importsessions"), 1) << kFieldsInOrder[spoiled] << how << ": the row stays";
    for (std::size_t i = 0; i < std::size(kFieldsInOrder); ++i) {
        const std::string path = std::string("Importsessions/1/") + kFieldsInOrder[i];
        if (i == spoiled)
            continue;
        EXPECT_EQ(model.kind(path) != DataType::eEmpty, i < spoiled)
            << kFieldsInOrder[i] << " with " << kFieldsInOrder[spoiled] << how;
    }
    EXPECT_EQ(model.integer("NextImportID"), 1) << kFieldsInOrder[spoiled] << how << ": the counter stays";
}

TEST(SeesionInfoTest, MissingFieldEndsTheSessionAndLeavesWhatWasBefore) {
    for (std::size_t i = 0; i < std::size(kFieldsInOrder); ++i) {
        SchemaDraft schema = SchemaDraft::finance();
        schema.table("Importsessions").without(kFieldsInOrder[i]);
        expectWritingStopsAt(i, FinanceModel(schema), " missing");
    }
}

TEST(SeesionInfoTest, RefusedFieldEndsTheSessionAndLeavesWhatWasBefore) {
    for (std::size_t i = 0; i < std::size(kFieldsInOrder); ++i) {
        SchemaDraft schema = SchemaDraft::finance();
        schema.table("Importsessions").refusing(kFieldsInOrder[i]);
        expectWritingStopsAt(i, FinanceModel(schema), " refusing");
    }
}

TEST(SeesionInfoTest, EmptyPartsAreRefusedByTheModel) {
    const FinanceModel model;
    SeesionInfo session = wholeSession(model.root());
    session.m_importID = DataType(); // as after a missing counter
    EXPECT_EQ(session.writeSessionInfoToDM(), nullptr);
    EXPECT_EQ(model.text("Importsessions/1/ImportInfo"), "Umsaetze Mai");
    EXPECT_EQ(model.kind("Importsessions/1/ImportTyp"), DataType::eEmpty);
}

TEST(SeesionInfoTest, MissingCounterIsNotCheckedAfterTheRow) {
    const FinanceModel model(SchemaDraft::finance().without("NextImportID"));
    SeesionInfo session = wholeSession(model.root());
    session.m_importID = DataType::makeInteger(7);
    const Node* row = session.writeSessionInfoToDM();
    EXPECT_NE(row, nullptr);
    EXPECT_EQ(row, model.node("Importsessions/1"));
    EXPECT_EQ(model.text("Importsessions/1/ImportFileName"), "/home/x/mai.csv");
}

TEST(SeesionInfoTest, CounterThatRefusesIsNotCheckedAfterTheRow) {
    const FinanceModel model(SchemaDraft::finance().refusing("NextImportID"));
    SeesionInfo session = wholeSession(model.root());
    session.m_importID = DataType::makeInteger(7);
    const Node* row = session.writeSessionInfoToDM();
    EXPECT_NE(row, nullptr);
    EXPECT_EQ(row, model.node("Importsessions/1"));
    EXPECT_EQ(model.kind("NextImportID"), DataType::eEmpty);
}

TEST(SeesionInfoTest, LargestImportIDIsFollowedByTheSmallest) {
    const FinanceModel model;
    SeesionInfo session = wholeSession(model.root());
    session.m_importID = DataType::makeInteger(INT_MAX);
    ASSERT_NE(session.writeSessionInfoToDM(), nullptr);
    EXPECT_EQ(model.integer("NextImportID"), INT_MIN);
}

TEST(SeesionInfoTest, CounterThatWasNoIntegerIsWrittenBackAsOne) {
    SchemaDraft schema = SchemaDraft::finance();
    schema.table("Importsessions").field("ImportID").kind = DataType::eString; // takes the odd value
    const FinanceModel model(schema);
    SeesionInfo session = wholeSession(model.root());
    session.m_importID = textValue("sieben");
    ASSERT_NE(session.writeSessionInfoToDM(), nullptr);
    EXPECT_EQ(model.text("Importsessions/1/ImportID"), "sieben");
    EXPECT_EQ(model.integer("NextImportID"), 1);
}

TEST(SeesionInfoTest, MissingTableOrRootWritesNothing) {
    const FinanceModel model(SchemaDraft::finance().without("Importsessions"));
    EXPECT_EQ(wholeSession(model.root()).writeSessionInfoToDM(), nullptr);
    EXPECT_EQ(model.integer("NextImportID"), 1);
    EXPECT_EQ(wholeSession(nullptr).writeSessionInfoToDM(), nullptr);
}

TEST(SeesionInfoTest, ChildThatIsNoTableWritesNothing) {
    SchemaDraft schema = SchemaDraft::finance();
    schema.without("Importsessions").fields.push_back({"Importsessions", DataType::eString});
    const FinanceModel model(schema);
    EXPECT_EQ(wholeSession(model.root()).writeSessionInfoToDM(), nullptr);
    EXPECT_EQ(model.integer("NextImportID"), 1);
}

TEST(SeesionInfoTest, RootIsPreparedForTheRow) {
    CountingNode root;
    wholeSession(&root).writeSessionInfoToDM();
    EXPECT_EQ(root.prepared(), 1);
}

TEST(SeesionInfoTest, FullTableTakesNoMoreSessions) {
    const FinanceModel model;
    auto* sessions = dynamic_cast<NodeTable*>(model.node("Importsessions"));
    ASSERT_NE(sessions, nullptr);
    for (unsigned row = 1; row <= 65535; ++row)
        ASSERT_NE(sessions->create(static_cast<unsigned short>(row)), 0);
    EXPECT_EQ(wholeSession(model.root()).writeSessionInfoToDM(), nullptr);
    EXPECT_EQ(model.rows("Importsessions"), 65535);
    EXPECT_EQ(model.integer("NextImportID"), 1);
}

TEST(SeesionInfoTest, CopiesAreIndependent) {
    const FinanceModel model;
    const SeesionInfo original = wholeSession(model.root());
    SeesionInfo copy = original;
    copy.m_importInfo = "anders";
    copy.m_importType = 5;
    EXPECT_EQ(original.m_importInfo.asString(true, 2), "Umsaetze Mai");
    EXPECT_EQ(original.m_importType, 1);
    EXPECT_TRUE(original.isValid());
}

} // namespace
