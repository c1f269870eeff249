// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "cli/commands/Commands.h"
#include "cli/Console.h"
#include "cli/FormatTable.h"
#include "cli/JsonText.h"
#include "cli/TableWriter.h"
#include "datamodel/HostText.h"
#include "framework/ImportExternData.h"

namespace {

void writeJson(Console& console) {
    Json list = Json::array();
    for (const ImportExternData::FileFormatInfo& info : ImportExternData::getSupportedFileFormats()) {
        list.push_back({{"format", static_cast<int>(info.m_format)},
                        {"label", HostText::toUtf8(info.m_label)},
                        {"extension", info.m_extension}});
    }
    console.write(JsonText::of(list) + "\n");
}

void writeTable(Console& console) {
    std::vector<std::vector<std::string>> rows;
    for (const ImportExternData::FileFormatInfo& info : ImportExternData::getSupportedFileFormats()) {
        rows.push_back({FormatTable::of(info.m_format).optionName, "." + info.m_extension,
                        HostText::toUtf8(info.m_label), std::to_string(info.m_format)});
    }
    using Kind = TableColumn::Kind;
    TableWriter table(
        console,
        {{"--format", Kind::fixed}, {"Endung", Kind::fixed}, {"Bezeichnung", Kind::text}, {"Nummer", Kind::number}});
    for (const auto& row : rows)
        table.measure(row);
    table.begin();
    for (const auto& row : rows)
        table.write(row);
}

ExitStatus run(const Options& /*options*/, Console& console) {
    if (console.json())
        writeJson(console);
    else
        writeTable(console);
    return ExitStatus::done;
}

} // namespace

const Command kFormatsCommand = {"formats", "die unterstützten Formate", {nullptr, false, false}, {}, run};
