// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "framework/datamodel_api/DMStringFunctions.h"

/// A line without the blanks at its ends, then without the tabs at what are its
/// ends then. Once each: a blank inside a tab stays.
inline std::string stripBlanks(const char* line) {
    std::string text = line;
    for (const char blank : {' ', '\t'}) {
        if (!text.empty() && (text.front() == blank || text.back() == blank)) // stripping copies, and few lines need it
            text = DMStringFunctions::strip(text, DMStringFunctions::eStripBoth, blank);
    }
    return text;
}
