// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "cli/FormatTable.h"

#include <algorithm>
#include <iterator>
#include <stdexcept>

#include "framework/datamodel_api/CrossPlatformApi.h"
#include "framework/ImportExternData.h"

namespace {

// The library keeps its fixed layouts to itself; messages name the cell of a
// refused value, and these are the columns whose values can be refused.
constexpr ColumnAssignment kStarMoneyColumns = {{{0, Import::eColDatum}, {2, Import::eColBetrag}}, 2};
constexpr ColumnAssignment kTaxColumns = {{{1, Import::eColBetrag}, {2, Import::eColDatum}}, 2};
constexpr ColumnAssignment kZasterhofColumns = {{{5, Import::eColDatum}, {10, Import::eColBetrag}}, 2};

constexpr FormatTraits kFormats[] = {
    {Import::eFormatStarMoney, "star-money", true, true, '|', &kStarMoneyColumns},
    {Import::eFormatCSV, "csv", true, false, 0, nullptr},
    {Import::eFormatQIF, "qif", false, false, 0, nullptr},
    {Import::eFormatTaxData, "tax", true, false, ';', &kTaxColumns},
    {Import::eFormatZasterhof, "zasterhof", true, true, ';', &kZasterhofColumns},
};

const ImportExternData::FileFormatInfo& listed(Import::E_SupportedImportFormats format) {
    for (const ImportExternData::FileFormatInfo& info : ImportExternData::getSupportedFileFormats()) {
        if (info.m_format == format)
            return info;
    }
    throw std::logic_error("no such format");
}

} // namespace

namespace FormatTable {

std::span<const FormatTraits> all() { return kFormats; }

const FormatTraits& of(Import::E_SupportedImportFormats format) {
    for (const FormatTraits& traits : kFormats) {
        if (traits.format == format)
            return traits;
    }
    throw std::logic_error("no such format");
}

const FormatTraits* byOptionName(std::string_view name) {
    const auto* found = std::find_if(std::begin(kFormats), std::end(kFormats),
                                     [name](const FormatTraits& traits) { return name == traits.optionName; });
    return found != std::end(kFormats) ? found : nullptr;
}

std::optional<Import::E_SupportedImportFormats> byExtension(const std::string& name) {
    const std::string::size_type dot = name.rfind('.');
    if (dot == std::string::npos)
        return std::nullopt;
    const std::string extension = name.substr(dot + 1);
    for (const ImportExternData::FileFormatInfo& info : ImportExternData::getSupportedFileFormats()) {
        if (CrossPlatformApi::strCmpNoCase(info.m_extension.c_str(), extension.c_str()) == 0)
            return info.m_format;
    }
    return std::nullopt;
}

Import::E_SupportedImportFormats ofFileName(const std::string& name) {
    return byExtension(name).value_or(Import::eFormatCSV);
}

std::string extensionOf(Import::E_SupportedImportFormats format) { return listed(format).m_extension; }

std::string labelOf(Import::E_SupportedImportFormats format) { return listed(format).m_label; }

} // namespace FormatTable
