// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include <climits>
#include <string>

#include <gtest/gtest.h>

#include "dmwrite/Importer.h"
#include "dmwrite/SeesionInfo.h"
#include "support/CountingNode.h"
#include "support/FinanceModel.h"

namespace {

SeesionInfo sessionWithID(const DataType& importID) {
    SeesionInfo session;
    session.m_importID = importID;
    return session;
}

// ---- the counter of unique IDs

TEST(UniqueIDTest, TwoRecordsGetTheCounterAndTheNextNumber) {
    const FinanceModel model;
    model.set("NextUniqueID", DataType::makeInteger(17));
    const Importer importer(model.root());
    Node* first = importer.createNewDataSet();
    Node* second = importer.createNewDataSet();
    EXPECT_TRUE(importer.setUniqueID(first));
    EXPECT_TRUE(importer.setUniqueID(second));
    EXPECT_EQ(model.kind("DataSets/1/UniqueID"), DataType::eInteger);
    EXPECT_EQ(model.integer("DataSets/1/UniqueID"), 17);
    EXPECT_EQ(model.integer("DataSets/2/UniqueID"), 18);
    EXPECT_EQ(model.kind("NextUniqueID"), DataType::eInteger);
    EXPECT_EQ(model.integer("NextUniqueID"), 19);
}

TEST(UniqueIDTest, NextUniqueIDIsReturnedAsItWas) {
    const FinanceModel model;
    const DataType value = Importer(model.root()).getNextUniqueID();
    EXPECT_EQ(value.kind(), DataType::eInteger);
    EXPECT_EQ(value.getInt(), 1);
    EXPECT_EQ(model.integer("NextUniqueID"), 2);
}

TEST(UniqueIDTest, RecordWithoutTheFieldStillMovesTheCounterOn) {
    SchemaDraft schema = SchemaDraft::finance();
    schema.table("DataSets").without("UniqueID");
    const FinanceModel model(schema);
    const Importer importer(model.root());
    EXPECT_FALSE(importer.setUniqueID(importer.createNewDataSet()));
    EXPECT_EQ(model.integer("NextUniqueID"), 2);
}

TEST(UniqueIDTest, RefusedIDStillMovesTheCounterOn) {
    SchemaDraft schema = SchemaDraft::finance();
    schema.table("DataSets").refusing("UniqueID");
    const FinanceModel model(schema);
    const Importer importer(model.root());
    EXPECT_FALSE(importer.setUniqueID(importer.createNewDataSet()));
    EXPECT_EQ(model.integer("NextUniqueID"), 2);
}

TEST(UniqueIDTest, NoRecordStillMovesTheCounterOn) {
    const FinanceModel model;
    EXPECT_FALSE(Importer(model.root()).setUniqueID(nullptr));
    EXPECT_EQ(model.integer("NextUniqueID"), 2);
}

TEST(UniqueIDTest, EmptyCounterIsReturnedAsReadAndBecomesOne) {
    const SchemaDraft schema = SchemaDraft::finance();
    const DataModel model(schema.build()); // no counter is set
    Importer importer(&model.root());
    EXPECT_EQ(importer.getNextUniqueID().kind(), DataType::eEmpty);
    EXPECT_EQ(importer.getNextUniqueID().getInt(), 1);
    EXPECT_EQ(importer.getNextUniqueID().getInt(), 2);
}

TEST(UniqueIDTest, CounterThatIsNoIntegerIsReturnedAsReadAndCannotTakeOne) {
    SchemaDraft schema = SchemaDraft::finance();
    schema.field("NextUniqueID").kind = DataType::eString;
    const FinanceModel model(schema);
    model.set("NextUniqueID", textValue("siebzehn"));
    const Importer importer(model.root());
    const DataType value = importer.getNextUniqueID();
    EXPECT_EQ(value.kind(), DataType::eString);
    EXPECT_EQ(value.asString(true, 2), "siebzehn");
    EXPECT_EQ(model.text("NextUniqueID"), "siebzehn") << "this field takes texts alone";
    EXPECT_FALSE(importer.setUniqueID(importer.createNewDataSet())) << "nor does the record take the text";
}

TEST(UniqueIDTest, EmptyCounterFailsItsRecordAsTheModelDecides) {
    const DataModel model(SchemaDraft::finance().build());
    const Importer importer(&model.root());
    EXPECT_FALSE(importer.setUniqueID(importer.createNewDataSet())) << "the empty value is refused";
    Node* second = importer.createNewDataSet();
    EXPECT_TRUE(importer.setUniqueID(second)) << "the counter was written back as 1";
    EXPECT_EQ(second->getNode(NDX("UniqueID"))->getValue().getInt(), 1);
}

TEST(UniqueIDTest, MissingCounterGivesNoID) {
    const FinanceModel model(SchemaDraft::finance().without("NextUniqueID"));
    const Importer importer(model.root());
    EXPECT_EQ(importer.getNextUniqueID().kind(), DataType::eEmpty);
    EXPECT_FALSE(importer.setUniqueID(importer.createNewDataSet()));
}

TEST(UniqueIDTest, NoRootGivesNoID) { EXPECT_EQ(Importer().getNextUniqueID().kind(), DataType::eEmpty); }

TEST(UniqueIDTest, LargestIDIsFollowedByTheSmallest) {
    const FinanceModel model;
    model.set("NextUniqueID", DataType::makeInteger(INT_MAX));
    const Importer importer(model.root());
    EXPECT_EQ(importer.getNextUniqueID().getInt(), INT_MAX);
    EXPECT_EQ(model.integer("NextUniqueID"), INT_MIN);
}

// ---- records

TEST(NewDataSetTest, RecordsAreAppendedWithEveryFieldEmpty) {
    const FinanceModel model;
    const Importer importer(model.root());
    Node* first = importer.createNewDataSet();
    Node* second = importer.createNewDataSet();
    EXPECT_EQ(first, model.node("DataSets/1"));
    EXPECT_EQ(second, model.node("DataSets/2"));
    EXPECT_EQ(model.rows("DataSets"), 2);
    for (const char* field : {"Empfaenger", "Kategorie", "Unterkategorie", "Verwendungszweck", "Buchungstext", "Datum",
                              "Betrag", "ImportID", "UniqueID"})
        EXPECT_EQ(model.kind(std::string("DataSets/2/") + field), DataType::eEmpty) << field;
}

TEST(NewDataSetTest, RootIsPreparedForEveryRecord) {
    CountingNode root;
    const Importer importer(&root);
    EXPECT_EQ(importer.createNewDataSet(), nullptr) << "this root has no table";
    EXPECT_EQ(root.prepared(), 1);
    importer.createNewDataSet();
    EXPECT_EQ(root.prepared(), 2);
}

TEST(NewDataSetTest, RootWithoutTheTableGetsNoRecord) {
    const FinanceModel model(SchemaDraft::finance().without("DataSets"));
    EXPECT_EQ(Importer(model.root()).createNewDataSet(), nullptr);
    EXPECT_EQ(Importer(nullptr).createNewDataSet(), nullptr);
}

TEST(NewDataSetTest, ChildThatIsNoTableGetsNoRecord) {
    SchemaDraft schema = SchemaDraft::finance();
    schema.without("DataSets").fields.push_back({"DataSets", DataType::eString});
    EXPECT_EQ(Importer(FinanceModel(schema).root()).createNewDataSet(), nullptr);
}

TEST(NewDataSetTest, Record65536IsRefusedAndNothingBeforeItIsLost) {
    const FinanceModel model;
    const Importer importer(model.root());
    Node* last = nullptr;
    for (int row = 1; row <= 65535; ++row) {
        last = importer.createNewDataSet();
        ASSERT_NE(last, nullptr) << row;
    }
    EXPECT_EQ(importer.createNewDataSet(), nullptr);
    EXPECT_EQ(importer.createNewDataSet(), nullptr);
    EXPECT_EQ(model.rows("DataSets"), 65535);
    EXPECT_EQ(model.node("DataSets/65535"), last);
}

// ---- both IDs of a record

TEST(RecordIDsTest, RecordGetsTheSessionsIDAndAUniqueID) {
    const FinanceModel model;
    model.set("NextUniqueID", DataType::makeInteger(17));
    const Importer importer(model.root());
    const SeesionInfo session = sessionWithID(DataType::makeInteger(5));
    EXPECT_TRUE(importer.setIDsInDataSet(importer.createNewDataSet(), session));
    EXPECT_TRUE(importer.setIDsInDataSet(importer.createNewDataSet(), session));
    EXPECT_EQ(model.integer("DataSets/1/ImportID"), 5);
    EXPECT_EQ(model.integer("DataSets/1/UniqueID"), 17);
    EXPECT_EQ(model.integer("DataSets/2/ImportID"), 5);
    EXPECT_EQ(model.integer("DataSets/2/UniqueID"), 18);
    EXPECT_EQ(model.integer("NextUniqueID"), 19);
}

TEST(RecordIDsTest, MissingImportIDFieldTakesNoUniqueID) {
    SchemaDraft schema = SchemaDraft::finance();
    schema.table("DataSets").without("ImportID");
    const FinanceModel model(schema);
    const Importer importer(model.root());
    EXPECT_FALSE(importer.setIDsInDataSet(importer.createNewDataSet(), sessionWithID(DataType::makeInteger(5))));
    EXPECT_EQ(model.kind("DataSets/1/UniqueID"), DataType::eEmpty);
    EXPECT_EQ(model.integer("NextUniqueID"), 1);
}

TEST(RecordIDsTest, RefusedImportIDTakesNoUniqueID) {
    const FinanceModel model;
    const Importer importer(model.root());
    EXPECT_FALSE(importer.setIDsInDataSet(importer.createNewDataSet(), sessionWithID(DataType())));
    EXPECT_EQ(model.kind("DataSets/1/UniqueID"), DataType::eEmpty);
    EXPECT_EQ(model.integer("NextUniqueID"), 1);
}

TEST(RecordIDsTest, MissingUniqueIDFieldFailsBehindTheImportID) {
    SchemaDraft schema = SchemaDraft::finance();
    schema.table("DataSets").without("UniqueID");
    const FinanceModel model(schema);
    const Importer importer(model.root());
    EXPECT_FALSE(importer.setIDsInDataSet(importer.createNewDataSet(), sessionWithID(DataType::makeInteger(5))));
    EXPECT_EQ(model.integer("DataSets/1/ImportID"), 5);
    EXPECT_EQ(model.integer("NextUniqueID"), 2);
}

TEST(RecordIDsTest, NoRecordTakesNoIDs) {
    const FinanceModel model;
    EXPECT_FALSE(Importer(model.root()).setIDsInDataSet(nullptr, sessionWithID(DataType::makeInteger(5))));
    EXPECT_EQ(model.integer("NextUniqueID"), 1);
}

// ---- markers under the root

TEST(ImportMarkersTest, LastImportDateIsTheSessions) {
    const FinanceModel model;
    SeesionInfo session;
    session.m_importDate = dateValue(24, 5, 2026);
    Importer(model.root()).writeLastImportDate(session);
    EXPECT_EQ(model.text("LetztesImportDatum"), "24.05.2026");
}

TEST(ImportMarkersTest, RefusedLastImportDateLeavesTheOneBefore) {
    const FinanceModel model;
    model.set("LetztesImportDatum", dateValue(1, 2, 2004));
    Importer(model.root()).writeLastImportDate(SeesionInfo());
    EXPECT_EQ(model.text("LetztesImportDatum"), "01.02.2004");
}

TEST(ImportMarkersTest, NewDataMarkerIsSetToTrue) {
    const FinanceModel model;
    EXPECT_EQ(model.kind("NeueDatenVorhanden"), DataType::eEmpty);
    Importer(model.root()).writeNewDataExists();
    EXPECT_EQ(model.kind("NeueDatenVorhanden"), DataType::eBoolean);
    EXPECT_TRUE(model.value("NeueDatenVorhanden").getBoolean());
}

TEST(ImportMarkersTest, HostWithoutMarkersGetsNone) {
    const FinanceModel model(SchemaDraft::finance().without("LetztesImportDatum").without("NeueDatenVorhanden"));
    SeesionInfo session;
    session.m_importDate = dateValue(24, 5, 2026);
    for (Node* root : {model.root(), static_cast<Node*>(nullptr)}) {
        const Importer importer(root);
        importer.writeLastImportDate(session);
        importer.writeNewDataExists();
    }
    EXPECT_EQ(model.node("LetztesImportDatum"), nullptr);
    EXPECT_EQ(model.node("NeueDatenVorhanden"), nullptr);
}

} // namespace
