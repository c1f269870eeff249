// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>

/// A name and a value beside it. Printable UTF-8.
struct PageFact {
    std::string label;
    std::string value;
    bool isRaw = false; ///< to be read letter by letter, as a checksum
};
