// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <string>

/// What the reader behind Qt's trees meets in a document before it stops. Qt 5 and Qt 6 have different readers, so
/// there are two sources of this, of which a program links one.
struct PlainReading {
    int deepestLevel = 0;
    int mostAttributes = 0;   ///< of one element
    std::size_t prefixes = 0; ///< declarations in all elements together, those without a prefix left out
    bool wellFormed = false;

    static PlainReading of(const std::u16string& document);
};
