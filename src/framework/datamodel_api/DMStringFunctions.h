// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "framework/datamodel_api/DmApi.h"

/// The host's text helpers.
class DM_API DMStringFunctions {
public:
    enum StripType : int { eStripLeading = 0, eStripTrailing = 1, eStripBoth = 2 };

    /// `text` without `character` at the ends that `type` names.
    static std::string strip(const std::string& text, StripType type, char character);
};
