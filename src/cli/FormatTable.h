// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "framework/ColumnAssignment.h"
#include "framework/E_SupportedImportFormats.h"

/// What the program knows of a format beside what the library lists.
struct FormatTraits {
    Import::E_SupportedImportFormats format;
    const char* optionName;         ///< how --format names it
    bool recordPerLine;             ///< every line with content is a record, its fields between delimiters
    bool firstLineAlwaysHeader;     ///< whatever the caller says
    char delimiter;                 ///< 0 where the caller says it, or there is none
    const ColumnAssignment* layout; ///< see FormatTable.cpp; null where the caller says it, or there are no columns

    /// Whether the caller says what is in which column.
    bool takesColumns() const { return recordPerLine && delimiter == 0; }
};

namespace FormatTable {

std::span<const FormatTraits> all();
/// Of a number that the library lists; any other is a mistake of the program.
const FormatTraits& of(Import::E_SupportedImportFormats format);
/// By the name that --format uses.
const FormatTraits* byOptionName(std::string_view name);

/// The format whose extension the name has, if it is one of the list.
std::optional<Import::E_SupportedImportFormats> byExtension(const std::string& name);
/// The format that the front door picks for a file of that name.
Import::E_SupportedImportFormats ofFileName(const std::string& name);
/// An extension by which the front door picks that format, without the dot.
std::string extensionOf(Import::E_SupportedImportFormats format);
/// The label of the format list.
std::string labelOf(Import::E_SupportedImportFormats format);

} // namespace FormatTable
