// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "cli/FormatTable.h"

#include <gmock/gmock.h>

#include "cli/LibraryRun.h"

namespace {

TEST(FormatTable, EveryFormatOfTheLibraryHasItsEntry) {
    const auto& listed = ImportExternData::getSupportedFileFormats();
    EXPECT_EQ(FormatTable::all().size(), listed.size());
    for (const ImportExternData::FileFormatInfo& info : listed) {
        const FormatTraits& traits = FormatTable::of(info.m_format);
        EXPECT_EQ(FormatTable::byOptionName(traits.optionName), &traits);
        EXPECT_EQ(FormatTable::extensionOf(info.m_format), info.m_extension);
        EXPECT_EQ(FormatTable::labelOf(info.m_format), info.m_label);
        EXPECT_EQ(FormatTable::ofFileName("x." + info.m_extension), info.m_format);
    }
    EXPECT_THROW(FormatTable::of(Import::eFormatNone), std::logic_error);
    EXPECT_THROW(FormatTable::labelOf(Import::eFormatNone), std::logic_error);
    EXPECT_EQ(FormatTable::byOptionName("CSV"), nullptr);
}

struct NameCase {
    const char* name;
    Import::E_SupportedImportFormats format;
};

constexpr NameCase kNames[] = {
    {"Konten.CSV", Import::eFormatCSV},   {"x.SDI", Import::eFormatTaxData}, {"a.b.QIF", Import::eFormatQIF},
    {"a.qif.txt", Import::eFormatCSV},    {"qif", Import::eFormatCSV},       {"a.", Import::eFormatCSV},
    {"ordner.qif/a", Import::eFormatCSV}, {"", Import::eFormatCSV},          {".zhof", Import::eFormatZasterhof},
};

TEST(FormatTable, NameDecidesAsItDoesForTheFrontDoor) {
    for (const NameCase& example : kNames) {
        EXPECT_EQ(FormatTable::ofFileName(example.name), example.format) << example.name;
        ImportExternData door;
        door.create(std::string(example.name));
        EXPECT_EQ(door.getFileExtension() == std::string("qif"), example.format == Import::eFormatQIF) << example.name;
    }
}

} // namespace
