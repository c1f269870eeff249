// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "store/StoreError.h"

#include <string_view>

#include "store/PrintableText.h"
#include "store/StoreErrorTexts.h"

namespace {

std::string fill(std::string_view pattern, std::string_view path, std::string_view detail) {
    std::string text;
    while (!pattern.empty()) {
        const std::size_t open = pattern.find('{');
        text += pattern.substr(0, open);
        if (open == std::string_view::npos)
            break;
        pattern.remove_prefix(open);
        const std::size_t close = pattern.find('}');
        text += pattern.substr(0, close + 1) == "{path}" ? path : detail;
        pattern.remove_prefix(close + 1);
    }
    return text;
}

std::string compose(StoreErrorCode code, const std::filesystem::path& path, const std::string& detail) {
    const StoreErrorTexts& texts = StoreErrorTexts::of(code);
    return fill(texts.message, PrintableText::of(path.native()), PrintableText::of(detail)) + " " + texts.hint;
}

} // namespace

StoreError::StoreError(StoreErrorCode code, const std::filesystem::path& path, const std::string& detail)
    : std::runtime_error(compose(code, path, detail)), m_code(code) {}

const char* StoreError::codeText() const { return StoreErrorTexts::of(m_code).codeText; }
