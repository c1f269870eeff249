// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "architecture/VirtualSlot.h"

#include <type_traits>

#include <gtest/gtest.h>

#include "csv/ImportCSVBase.h"
#include "csv/ImportCSVInterface.h"
#include "csv/ImportModuleCSV.h"
#include "csv/ImportModuleStarMoney.h"
#include "csv/ImportModuleStarMoney2.h"
#include "dmwrite/ImportIntoDMHelper.h"
#include "framework/datamodel_api/DataModelApi.h"
#include "framework/ImportExternData.h"
#include "framework/ImportExternInterface.h"
#include "framework/ImportFileBase.h"
#include "framework/ImportInputParams.h"
#include "framework/ImportModuleBase.h"
#include "framework/ImportRecordSet.h"
#include "framework/ImportRecordSetImpl.h"
#include "homebanking/BankingXML.h"
#include "homebanking/ImportHomeBankingData.h"
#include "homebanking/XmlImportData.h"
#include "qif/ImportModuleQIF.h"

// Hosts were built against these tables: a virtual operation that moves calls
// another one in them. A destructor takes two slots where it is virtual.
namespace {

using VirtualSlot::count;
using VirtualSlot::of;

struct Slot {
    const char* operation;
    int found;
    int expected;
};

struct Sample {
    virtual void first() = 0;
    virtual void second() = 0;
    void plain() {}
};

TEST(VirtualSlots, AreReadFromPointersToMembers) {
    EXPECT_EQ(of(&Sample::first), 0);
    EXPECT_EQ(of(&Sample::second), 1);
    EXPECT_EQ(of(&Sample::plain), VirtualSlot::kNotVirtual);
    EXPECT_EQ(count<Sample>(), 2);
}

TEST(VirtualSlots, OfANodeAreTheFiveThatTheLibraryCalls) {
    const Slot slots[] = {
        {"prepareUpdate", of(&Node::prepareUpdate), 0},
        {"getNodeCount", of(&Node::getNodeCount), 1},
        {"getSchemaContext", of(&Node::getSchemaContext), 2},
        {"getValue", of(&Node::getValue), 3},
        {"setValue", of(&Node::setValue), 4},
    };
    for (const Slot& slot : slots)
        EXPECT_EQ(slot.found, slot.expected) << slot.operation;
    EXPECT_EQ(count<Node>(), 5);
    EXPECT_EQ(count<NodeTable>(), 5);
}

TEST(VirtualSlots, OfNodesLeaveOutWhatTheHostProvidesByName) {
    EXPECT_EQ(of(&Node::getNode), VirtualSlot::kNotVirtual);
    EXPECT_EQ(of(&Node::getNodeNum), VirtualSlot::kNotVirtual);
    EXPECT_EQ(of(&NodeTable::create), VirtualSlot::kNotVirtual);
    EXPECT_EQ(of(&NodeTable::destroy), VirtualSlot::kNotVirtual);
    EXPECT_FALSE(std::has_virtual_destructor_v<Node>);
    EXPECT_FALSE(std::is_polymorphic_v<DataType>);
    EXPECT_FALSE(std::is_polymorphic_v<DMDate>);
    EXPECT_FALSE(std::is_polymorphic_v<DMSchemaContext>);
}

TEST(VirtualSlots, OfTheModulesFollowTheChainOfClasses) {
    const Slot slots[] = {
        {"getErrorMsg", of(&ImportIntoDMHelper::getErrorMsg), 2},
        {"getFileExtension", of(&ImportExternInterface::getFileExtension), 3},
        {"importFile", of(&ImportExternInterface::importFile), 4},
        {"getLastSimulatedImport", of(&ImportExternInterface::getLastSimulatedImport), 5},
        {"getLastImportedDataSetsCount", of(&ImportExternInterface::getLastImportedDataSetsCount), 6},
        {"getLastImportedSessionID", of(&ImportExternInterface::getLastImportedSessionID), 7},
        {"processLine", of(&ImportFileBase::processLine), 8},
        {"compelteRowProcessing", of(&ImportFileBase::compelteRowProcessing), 9},
        {"getInputFileColNo", of(&ImportFileBase::getInputFileColNo), 10},
        {"assignColumns", of(&ImportCSVInterface::assignColumns), 11},
        {"importRowIntoTable, any width", of(&ImportCSVBase<UnknownRowInfo>::importRowIntoTable), 12},
        {"importRowIntoTable, 21 wide", of(&ImportCSVBase<ImportDataSetStartMoney>::importRowIntoTable), 12},
        {"CSV's getDefaultTargetNodeName", of(&ImportModuleCSV::getDefaultTargetNodeName), 13},
        {"CSV's onImportAllDataSets", of(&ImportModuleCSV::onImportAllDataSets), 14},
        {"QIF's getDefaultTargetNodeName", of(&ImportModuleQIF::getDefaultTargetNodeName), 11},
        {"QIF's onImportAllDataSets", of(&ImportModuleQIF::onImportAllDataSets), 12},
    };
    for (const Slot& slot : slots)
        EXPECT_EQ(slot.found, slot.expected) << slot.operation;
}

TEST(VirtualSlots, OfTheModulesAreNoMoreThanTheirClassesDeclare) {
    EXPECT_EQ(count<ImportIntoDMHelper>(), 3);
    EXPECT_EQ(count<ImportExternInterface>(), 8);
    EXPECT_EQ(count<ImportModuleBase>(), 8);
    EXPECT_EQ(count<ImportFileBase>(), 11);
    EXPECT_EQ(count<ImportCSVInterface>(), 12);
    EXPECT_EQ(count<ImportCSVBase<UnknownRowInfo>>(), 13);
    EXPECT_EQ(count<ImportCSVBase<ImportDataSetStartMoney>>(), 13);
    EXPECT_EQ(count<ImportModuleCSV>(), 15);
    EXPECT_EQ(count<ImportModuleStarMoney>(), 13);
    EXPECT_EQ(count<ImportModuleStarMoney2>(), 13);
    EXPECT_EQ(count<ImportModuleQIF>(), 13);
}

TEST(VirtualSlots, OfTheModulesStartWithADestructor) {
    EXPECT_TRUE(std::has_virtual_destructor_v<ImportIntoDMHelper>);
    EXPECT_TRUE(std::has_virtual_destructor_v<ImportModuleCSV>);
}

TEST(VirtualSlots, OfThePreviewAreTheReadingSide) {
    const Slot slots[] = {
        {"getColumnCount", of(&ImportRecordSet::getColumnCount), 2},
        {"getRowCount", of(&ImportRecordSet::getRowCount), 3},
        {"getString", of(&ImportRecordSet::getString), 4},
        {"getColumnHeader", of(&ImportRecordSet::getColumnHeader), 5},
        {"hasHeader", of(&ImportRecordSet::hasHeader), 6},
    };
    for (const Slot& slot : slots)
        EXPECT_EQ(slot.found, slot.expected) << slot.operation;
    EXPECT_EQ(count<ImportRecordSet>(), 7);
    EXPECT_EQ(count<ImportRecordSetImpl>(), 7);
    EXPECT_TRUE(std::has_virtual_destructor_v<ImportRecordSet>);
    EXPECT_EQ(of(&ImportRecordSetImpl::addRow), VirtualSlot::kNotVirtual);
    EXPECT_EQ(of(&ImportRecordSetImpl::setString), VirtualSlot::kNotVirtual);
}

TEST(VirtualSlots, OfTheFrontDoorsAreTheirDestructorsAlone) {
    EXPECT_TRUE(std::has_virtual_destructor_v<ImportExternData>);
    EXPECT_EQ(count<ImportExternData>(), 2);
    EXPECT_TRUE(std::has_virtual_destructor_v<ImportHomeBankingData>);
    EXPECT_EQ(count<ImportHomeBankingData>(), 2);
    EXPECT_FALSE(std::is_polymorphic_v<ImportInputParams>);
    EXPECT_FALSE(std::is_polymorphic_v<XmlImportData>);
}

TEST(VirtualSlots, OfTheHomeBankingReaderAreThoseOfItsBase) {
    EXPECT_EQ(of(&BankingXML::getErrorMsg), 2);
    EXPECT_EQ(count<BankingXML>(), 3);
    EXPECT_TRUE((std::is_base_of_v<ImportIntoDMHelper, BankingXML>));
}

TEST(VirtualSlots, ClassesHaveOneBaseEachSoThatOneTableServesAll) {
    EXPECT_TRUE((std::is_base_of_v<ImportIntoDMHelper, ImportExternInterface>));
    EXPECT_TRUE((std::is_base_of_v<ImportExternInterface, ImportModuleBase>));
    EXPECT_TRUE((std::is_base_of_v<ImportModuleBase, ImportFileBase>));
    EXPECT_TRUE((std::is_base_of_v<ImportFileBase, ImportCSVInterface>));
    EXPECT_TRUE((std::is_base_of_v<ImportCSVInterface, ImportCSVBase<UnknownRowInfo>>));
    EXPECT_TRUE((std::is_base_of_v<ImportCSVBase<UnknownRowInfo>, ImportModuleCSV>));
    EXPECT_TRUE((std::is_base_of_v<ImportFileBase, ImportModuleQIF>));
}

} // namespace
