// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "framework/ImportExternData.h"

#include <utility>

#include "csv/ImportCSVInterface.h"
#include "csv/ImportModuleCSV.h"
#include "csv/ImportModuleStarMoney.h"
#include "dmwrite/SmartDate.h"
#include "framework/AssertTypeSizes.h"
#include "framework/ImportModuleBase.h"
#include "framework/ImportRecordSetImpl.h"
#include "qif/ImportModuleQIF.h"

namespace {

constexpr char kDefaultDelimiter = ',';
constexpr char kFixedLayoutDelimiter = ';';

using Import::eColBetrag;
using Import::eColBuchungstext;
using Import::eColDatum;
using Import::eColEmpfaenger;
using Import::eColKategorie;
using Import::eColUnterkategorie;
using Import::eColVerwendungszweck;

constexpr ColumnAssignment kTaxDataLayout = {{{0, eColVerwendungszweck},
                                              {1, eColBetrag},
                                              {2, eColDatum},
                                              {3, eColEmpfaenger},
                                              {4, eColKategorie},
                                              {5, eColUnterkategorie},
                                              {6, eColBuchungstext}},
                                             7};

// Columns 0 to 4, 6 and 11 of such a file are not imported.
constexpr ColumnAssignment kZasterhofLayout = {{{5, eColDatum},
                                                {8, eColVerwendungszweck},
                                                {10, eColBetrag},
                                                {9, eColEmpfaenger},
                                                {12, eColKategorie},
                                                {7, eColBuchungstext},
                                                {13, eColUnterkategorie}},
                                               7};

} // namespace

std::list<ImportExternData::FileFormatInfo> ImportExternData::m_FileFormatInfoListCreator;

namespace {

// Behind the list's own definition, so that it fills a list that exists.
[[maybe_unused]] const bool g_formatListFilled = (ImportExternData::initFileFormatList(), true);

} // namespace

ImportExternData::ImportExternData() = default;
ImportExternData::~ImportExternData() = default;

const std::list<ImportExternData::FileFormatInfo>& ImportExternData::getSupportedFileFormats() {
    return m_FileFormatInfoListCreator;
}

void ImportExternData::initFileFormatList() {
    if (!m_FileFormatInfoListCreator.empty())
        return;
    m_FileFormatInfoListCreator = {
        {Import::eFormatStarMoney, "Star Money", ImportModuleStarMoney::m_MyFileExtension},
        {Import::eFormatCSV, "Komma getrennte Liste", ImportModuleCSV::m_MyFileExtension},
        {Import::eFormatQIF, "Quicken Interchange Format", ImportModuleQIF::m_MyFileExtension},
        {Import::eFormatTaxData, "Steuer Daten Import", "sdi"},
        {Import::eFormatZasterhof, "Zasterhof Money Import", "zhof"},
    };
}

bool ImportExternData::create(Import::E_SupportedImportFormats format) {
    SmartDate::sm_order = 0; // every import learns its date order afresh
    m_module.reset();
    m_format = format;
    switch (static_cast<int>(format)) { // hosts pass numbers that are no format
    case Import::eFormatStarMoney:
        m_module = std::make_unique<ImportModuleStarMoney>();
        break;
    case Import::eFormatCSV:
        m_module = std::make_unique<ImportModuleCSV>();
        break;
    case Import::eFormatQIF:
        m_module = std::make_unique<ImportModuleQIF>();
        break;
    case Import::eFormatTaxData:
        m_module = std::make_unique<ImportModuleCSV>();
        setupDefaultColumnAssignmentVKD();
        break;
    case Import::eFormatZasterhof:
        m_module = std::make_unique<ImportModuleCSV>();
        setupDefaultColumnAssignmentZHOF();
        break;
    default:
        return false;
    }
    m_module->m_format = format;
    return true;
}

// NOLINTNEXTLINE(performance-unnecessary-value-param): hosts link against this signature
bool ImportExternData::create(std::string fileName) {
    const std::string::size_type dot = fileName.rfind('.');
    if (dot == std::string::npos)
        return create(Import::eFormatCSV);
    const std::string extension = fileName.substr(dot + 1);
    for (const FileFormatInfo& info : m_FileFormatInfoListCreator) {
        if (CrossPlatformApi::strCmpNoCase(info.m_extension.c_str(), extension.c_str()) == 0)
            return create(info.m_format);
    }
    return create(Import::eFormatCSV);
}

int ImportExternData::importFile(const ImportInputParams& params, char delimiter, ColumnAssignment* assignment) {
    try {
        SmartDate::setupCenturyStart(params.m_targetNode);
        return params.m_fileName != nullptr ? importWithModule(params, delimiter, assignment) : 0;
    } catch (...) { // no exception crosses the library's boundary
        return 0;
    }
}

int ImportExternData::importWithModule(const ImportInputParams& params, char delimiter,
                                       const ColumnAssignment* assignment) {
    const bool hasModule = create(std::string(params.m_fileName));
    if (m_format == Import::eFormatCSV) {
        if (assignment != nullptr)
            assignColumns(*assignment);
        setDelimiterChar(delimiter);
    }
    return hasModule && params.m_targetNode != nullptr ? m_module->importFile(params) : 0;
}

bool ImportExternData::importElsterXmlFile(const ImportInputParams& /*params*/) { return false; }

void ImportExternData::setDelimiterChar(char delimiter) {
    if (auto* module = dynamic_cast<ImportModuleCSV*>(m_module.get()))
        module->m_delimiter = delimiter;
}

void ImportExternData::assignColumns(const ColumnAssignment& assignment) {
    if (auto* module = dynamic_cast<ImportCSVInterface*>(m_module.get()))
        module->assignColumns(assignment);
}

char ImportExternData::getBestDelimiter() const {
    const auto* module = dynamic_cast<const ImportModuleCSV*>(m_module.get());
    return module != nullptr ? module->getBestDelimiter() : kDefaultDelimiter;
}

void ImportExternData::setupDefaultColumnAssignmentVKD() { setupFixedLayout(kTaxDataLayout); }

void ImportExternData::setupDefaultColumnAssignmentZHOF() { setupFixedLayout(kZasterhofLayout); }

void ImportExternData::setupFixedLayout(const ColumnAssignment& assignment) {
    assignColumns(assignment);
    setDelimiterChar(kFixedLayoutDelimiter);
}

const char* ImportExternData::getFileExtension() const { return m_module ? m_module->getFileExtension() : nullptr; }

const char* ImportExternData::getErrorMsg() const { return m_module ? m_module->getErrorMsg() : nullptr; }

int ImportExternData::getLastImportedDataSetsCount() const {
    return m_module ? m_module->getLastImportedDataSetsCount() : 0;
}

int ImportExternData::getLastImportedSessionID() const { return m_module ? m_module->getLastImportedSessionID() : 0; }

const ImportRecordSet& ImportExternData::getLastSimulatedImport() const {
    static const ImportRecordSetImpl empty;
    return m_module ? m_module->getLastSimulatedImport() : empty;
}
