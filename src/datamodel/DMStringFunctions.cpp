// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "framework/datamodel_api/DMStringFunctions.h"

std::string DMStringFunctions::strip(const std::string& text, StripType type, char character) {
    std::size_t begin = 0;
    std::size_t end = text.size();
    if (type != eStripTrailing) {
        while (begin < end && text[begin] == character)
            ++begin;
    }
    if (type != eStripLeading) {
        while (end > begin && text[end - 1] == character)
            --end;
    }
    return text.substr(begin, end - begin);
}
