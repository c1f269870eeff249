// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "cli/GivenOptions.h"

#include <algorithm>
#include <iterator>
#include <string_view>

#include "cli/OptionTable.h"

namespace {

constexpr std::string_view kElsewhere[] = {"--store", "--report", "--json", "--quiet", "--color"};

std::string quoted(const std::string& value) {
    return value.find_first_of(" ;,\"'") == std::string::npos ? value : "\"" + value + "\"";
}

} // namespace

std::string GivenOptions::text(const Options& options) {
    std::string text;
    for (const OptionSpec& option : OptionTable::all()) {
        if (std::find(std::begin(kElsewhere), std::end(kElsewhere), option.name) != std::end(kElsewhere))
            continue;
        const std::string name = (text.empty() ? "" : " ") + std::string(option.name);
        if (option.isFlag()) {
            text += options.*std::get<OptionSpec::Flag>(option.target) ? name : "";
        } else if (const auto& value = options.*std::get<OptionSpec::Value>(option.target)) {
            text += name + " " + quoted(*value);
        }
    }
    return text;
}
