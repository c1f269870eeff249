# SPDX-FileCopyrightText: 2026 The ImportModule authors
# SPDX-License-Identifier: MIT

# The headers that are installed, below src/: the contract, what declares something that a library exports, and
# what these include. A test holds the lists to that (tests/install/public-headers-test.sh).

# Of ImportModule; the contract is needed with a model of a host's own, too.
set(import_module_headers
    csv/BlockStringBuf.h
    csv/DelimiterFinder.h
    csv/ImportCSVBase.h
    csv/ImportCSVInterface.h
    csv/ImportDataSetStartMoney.h
    csv/ImportModuleCSV.h
    csv/ImportModuleStarMoney.h
    csv/ImportModuleStarMoney2.h
    csv/UnknownRowInfo.h
    csv/stripQuotes.h
    dmwrite/E_ColumnIndex.h
    dmwrite/E_HBColumnIndex.h
    dmwrite/ImportIntoDMHelper.h
    dmwrite/SeesionInfo.h
    dmwrite/SmartDate.h
    framework/ColumnAssignment.h
    framework/E_SupportedImportFormats.h
    framework/ImportExternData.h
    framework/ImportExternInterface.h
    framework/ImportFileBase.h
    framework/ImportInputParams.h
    framework/ImportModuleApi.h
    framework/ImportModuleBase.h
    framework/ImportRecordSet.h
    framework/ImportRecordSetImpl.h
    framework/datamodel_api/AssertTypeSize_DataManager.h
    framework/datamodel_api/AssertTypeSize_Node.h
    framework/datamodel_api/CrossPlatformApi.h
    framework/datamodel_api/DMCurrency.h
    framework/datamodel_api/DMDate.h
    framework/datamodel_api/DMSchemaContext.h
    framework/datamodel_api/DMStringFunctions.h
    framework/datamodel_api/DataManager.h
    framework/datamodel_api/DataModelApi.h
    framework/datamodel_api/DataType.h
    framework/datamodel_api/DmApi.h
    framework/datamodel_api/NDX.h
    framework/datamodel_api/Node.h
    framework/datamodel_api/NodeTable.h
    homebanking/BankingXML.h
    homebanking/ImportHomeBankingData.h
    homebanking/XmlImportData.h
    homebanking/XmlNames.h
    qif/ImportModuleQIF.h
)

# Of Dm.
set(import_module_model_headers
    datamodel/DataManager.h
    datamodel/DataModel.h
    datamodel/FieldNode.h
    datamodel/FieldSpec.h
    datamodel/FinanceSchema.h
    datamodel/HostText.h
    datamodel/ModelContext.h
    datamodel/ModelObserver.h
    datamodel/RecordNode.h
    datamodel/RecordSpec.h
    datamodel/RowSlot.h
    datamodel/RowSource.h
    datamodel/TableNode.h
    datamodel/TableSpec.h
)
