// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "export/ExportFormats.h"

#include <algorithm>
#include <iterator>

#include "export/CsvWriter.h"
#include "export/JournalWriter.h"
#include "export/JsonWriter.h"
#include "export/QifWriter.h"

namespace {

template <typename Writer>
std::unique_ptr<ExportWriter> make(const ExportContext& context) {
    return std::make_unique<Writer>(context);
}

constexpr ExportFormat kFormats[] = {
    {"csv", make<CsvWriter>},
    {"json", make<JsonWriter>},
    {"hledger", make<JournalWriter>},
    {"qif", make<QifWriter>},
};

} // namespace

namespace ExportFormats {

std::span<const ExportFormat> all() { return kFormats; }

const ExportFormat* byName(std::string_view name) {
    const auto* found = std::find_if(std::begin(kFormats), std::end(kFormats),
                                     [name](const ExportFormat& format) { return name == format.name; });
    return found != std::end(kFormats) ? found : nullptr;
}

} // namespace ExportFormats
